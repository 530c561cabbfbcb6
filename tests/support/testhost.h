// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QMap>
#include <QSet>
#include <functional>

// An in-memory parameter table whose answers a test scripts. Every setValue is logged
// with the exact QVariant the control handed over.
class TestHost : public MainConfigIFace
{
public:
    struct Write
    {
        int ref;
        QVariant value;
    };

    TestHost();

    // Adds (or replaces) a record; parameter 2, the configuration version, exists from
    // the start with version 10.
    MainConfigObject &add(int ref, int type, const QVariant &value = QVariant());
    void setVersion(quint32 version) { records[2].value = version; }

    MainConfigObject &object(int ref) override;
    QVariant value(int ref) override;
    void setValue(int ref, QVariant v) override;
    bool isValid(int ref) override;
    bool isModified(int ref) override;
    bool matchesStored(int ref, QVariant candidate) override;
    QList<int> invalidItems(int ref) override;
    QString nameOfUInt(quint32 value, QList<NamedUInt> names) override;
    QString nameOfUShort(quint16 value, QList<NamedUShort> names) override;
    QList<int> modifiedItems(int ref) override;
    quint16 ushortOfName(QString text, QList<NamedUShort> names) override;
    quint32 uintOfName(QString text, QList<NamedUInt> names) override;
    bool isStoredItem(int ref, QVariant element) override;

    QMap<int, MainConfigObject> records;
    // Scripted answers.
    QSet<int> invalid;          // isValid false for these
    QSet<int> modified;         // isModified true for these
    QMap<int, QVariant> stored; // matchesStored compares against these
    QMap<int, QList<int>> invalidItemsOf, modifiedItemsOf;
    QMap<int, QVariantList> storedItemsOf; // isStoredItem looks here
    bool storeWrites = true;               // setValue also updates the record's value
    // Optional hook run after each logged write (a host reacting to the edit).
    std::function<void(int, const QVariant &)> onWrite;

    QList<Write> writes;
    int objectCalls = 0;
};
