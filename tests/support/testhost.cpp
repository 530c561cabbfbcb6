// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tests/support/testhost.h"

TestHost::TestHost()
{
    records[2].value = 10u;
}

MainConfigObject &TestHost::add(int ref, int type, const QVariant &value)
{
    MainConfigObject &object = records[ref];
    object = MainConfigObject();
    object.type = type;
    object.value = value;
    object.minVersions[0] = 0;
    return object;
}

MainConfigObject &TestHost::object(int ref)
{
    ++objectCalls;
    return records[ref];
}

QVariant TestHost::value(int ref)
{
    return records[ref].value;
}

void TestHost::setValue(int ref, QVariant v)
{
    writes.append({ref, v});
    if (storeWrites)
        records[ref].value = v;
    if (onWrite)
        onWrite(ref, v);
}

bool TestHost::isValid(int ref)
{
    return !invalid.contains(ref);
}

bool TestHost::isModified(int ref)
{
    return modified.contains(ref);
}

bool TestHost::matchesStored(int ref, QVariant candidate)
{
    return stored.value(ref) == candidate;
}

QList<int> TestHost::invalidItems(int ref)
{
    return invalidItemsOf.value(ref);
}

QList<int> TestHost::modifiedItems(int ref)
{
    return modifiedItemsOf.value(ref);
}

QString TestHost::nameOfUInt(quint32 value, QList<NamedUInt> names)
{
    for (const NamedUInt &named : names)
        if (named.value == value)
            return named.name;
    return QString();
}

QString TestHost::nameOfUShort(quint16 value, QList<NamedUShort> names)
{
    for (const NamedUShort &named : names)
        if (named.value == value)
            return named.name;
    return QString();
}

quint16 TestHost::ushortOfName(QString text, QList<NamedUShort> names)
{
    for (const NamedUShort &named : names)
        if (named.name == text)
            return named.value;
    return 0;
}

quint32 TestHost::uintOfName(QString text, QList<NamedUInt> names)
{
    for (const NamedUInt &named : names)
        if (named.name == text)
            return named.value;
    return 0;
}

bool TestHost::isStoredItem(int ref, QVariant element)
{
    return storedItemsOf.value(ref).contains(element);
}
