// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QVariant>
#include <QVector>
#include <tuple>

// A data table's columns in one call: columns<int, QString>("type", "text").
template <class... T, class... Name> void columns(const Name &...names)
{
    static_assert(sizeof...(T) == sizeof...(Name), "one name per column");
    (QTest::addColumn<T>(names), ...);
}

// One row of a data table: row("name", 1, "text"), as QTest::newRow("name") << 1 << "text".
template <class... T> void row(const char *name, const T &...values)
{
    (QTest::newRow(name) << ... << values);
}

// A test function's data in one call, as QFETCH fetches each:
//   auto [type, text] = fetch<int, QString>("type", "text");
template <class... T, class... Name> std::tuple<T...> fetch(const Name &...names)
{
    static_assert(sizeof...(T) == sizeof...(Name), "one name per column");
    return {*static_cast<T *>(QTest::qData(names, qMetaTypeId<T>()))...};
}

// A collection value as hosts hold it: vec<quint32>({7, 0, 9}).
template <class Element> QVariant vec(std::initializer_list<Element> elements)
{
    return QVariant::fromValue(QVector<Element>(elements));
}
