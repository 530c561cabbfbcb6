// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QJsonObject>
#include <QStringList>
#include <functional>

// The demo's host table: parameter records loaded from a JSON device description, with a
// stored and a current value per parameter. Modified means the two differ; valid means the
// current value passes the parameter's own range, length and pattern rules.
class DemoTable : public MainConfigIFace
{
public:
    struct Parameter
    {
        int ref = 0;
        QString page;
        QString label;
        QString control; // "checkbox", "spinbox", ... or empty for parameters not shown
        QString text;    // text of a check box or radio button
        int decimals = 0; // of a decimal spin box
        QJsonObject rules;
    };
    struct Hardware
    {
        int id = 0;
        QString name;
    };

    // Loads a table; on failure returns false and says why in `error`.
    bool load(const QString &path, QString *error);

    // Called after every value the controls write, so the host can bring its form up to date.
    std::function<void(int)> onWrite;

    QString title;
    QStringList pages;
    QList<int> versions;
    QList<Hardware> hardware;
    QList<Parameter> parameters; // in the order they are shown

    quint32 version() { return records[2].value.toUInt(); }
    void setVersion(quint32 version);
    void save();   // the current values become the stored ones
    void revert(); // the stored values become current again
    int modifiedCount();
    int invalidCount();

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

private:
    QMap<int, MainConfigObject> records;
    QMap<int, QVariant> stored;
    QMap<int, QJsonObject> rules;
    QMap<int, QList<int>> groups; // radio choices sharing one value, by group number
};
