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

    // Parameter 2, the configuration version, exists from the start with version 10.
    TestHost() { records[2].value = 10u; }

    // Adds (or replaces) a record, shown from version 0 on.
    MainConfigObject &add(int ref, int type, const QVariant &value = QVariant())
    {
        MainConfigObject &object = records[ref] = MainConfigObject();
        object.type = type;
        object.value = value;
        object.minVersions[0] = 0;
        return object;
    }
    void setVersion(quint32 version) { records[2].value = version; }
    // Replaces every record by a copy, as a host does that rebuilds its table: a reference the
    // library kept into the old one then points at freed memory.
    void rebuild()
    {
        QMap<int, MainConfigObject> fresh;
        for (auto it = records.cbegin(); it != records.cend(); ++it)
            fresh.insert(it.key(), MainConfigObject(it.value()));
        records.swap(fresh);
    }

    MainConfigObject &object(int ref) override { return records[ref]; }
    QVariant value(int ref) override { return records[ref].value; }
    void setValue(int ref, QVariant v) override
    {
        writes.append({ref, v});
        records[ref].value = v;
        if (onWrite)
            onWrite(ref, v);
    }
    bool isValid(int ref) override { return !invalid.contains(ref); }
    bool isModified(int ref) override { return modified.contains(ref); }
    bool matchesStored(int ref, QVariant candidate) override
    {
        return stored.value(ref) == candidate;
    }
    QList<int> invalidItems(int ref) override { return invalidItemsOf.value(ref); }
    QList<int> modifiedItems(int ref) override { return modifiedItemsOf.value(ref); }
    bool isStoredItem(int ref, QVariant element) override
    {
        return storedItemsOf.value(ref).contains(element);
    }
    // Names are looked up in the list given, as a host's own table does.
    QString nameOfUInt(quint32 value, QList<NamedUInt> names) override
    {
        return lookUp(names, [value](const NamedUInt &n) { return n.value == value; }).name;
    }
    QString nameOfUShort(quint16 value, QList<NamedUShort> names) override
    {
        return lookUp(names, [value](const NamedUShort &n) { return n.value == value; }).name;
    }
    quint16 ushortOfName(QString text, QList<NamedUShort> names) override
    {
        return lookUp(names, [&text](const NamedUShort &n) { return n.name == text; }).value;
    }
    quint32 uintOfName(QString text, QList<NamedUInt> names) override
    {
        return lookUp(names, [&text](const NamedUInt &n) { return n.name == text; }).value;
    }

    QMap<int, MainConfigObject> records;
    // Scripted answers.
    QSet<int> invalid;          // isValid false for these
    QSet<int> modified;         // isModified true for these
    QMap<int, QVariant> stored; // matchesStored compares against these
    QMap<int, QList<int>> invalidItemsOf, modifiedItemsOf;
    QMap<int, QVariantList> storedItemsOf; // isStoredItem looks here
    // Optional hook run after each logged write (a host reacting to the edit).
    std::function<void(int, const QVariant &)> onWrite;

    QList<Write> writes;

private:
    // The first of `names` that `match` takes, or an empty name of value 0.
    template <class Named, class Match> static Named lookUp(const QList<Named> &names, Match match)
    {
        for (const Named &named : names)
            if (match(named))
                return named;
        return Named{};
    }
};
