// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/config/parametervalues_p.h"
#include "telecfg/qtcompat_p.h"

#include <QJsonArray>
#include <QSequentialIterable>
#include <QVector>
#include <algorithm>
#include <utility>

namespace parametervalues {
namespace {
// Collection types by the record's type code; tables carry no type of their own.
enum class Shape { Scalar, UShorts, UInts, Bytes, Strings, Table };

Shape shapeOf(const MainConfigObject &object)
{
    if (object.columnListA.isValid())
        return Shape::Table;
    using E = ParameterTraits::Element;
    switch (ParameterTraits::of(object.type).element) {
    case E::UShort:
        return Shape::UShorts;
    case E::UInt:
    case E::Network:
        return Shape::UInts;
    case E::Bytes:
        return Shape::Bytes;
    case E::String:
        return Shape::Strings;
    case E::None:
        break;
    }
    return Shape::Scalar;
}

template <class T, class Convert>
QVariant vectorOf(const QJsonArray &array, int capacity, Convert convert)
{
    QVector<T> vector(qMax(capacity, array.size()));
    for (int i = 0; i < array.size(); ++i)
        vector[i] = convert(array[i]);
    return QVariant::fromValue(vector);
}

// Texts are no collections here, though Qt 6 can iterate a QString or QByteArray as one.
bool isSequence(const QVariant &value)
{
    return value.canConvert<QVariantList>() && value.userType() != QMetaType::QString &&
           value.userType() != QMetaType::QByteArray;
}

QVariantList elementsOf(const QVariant &value)
{
    QVariantList list;
    if (!isSequence(value))
        return list;
    const auto iterable = value.value<QSequentialIterable>();
    for (const QVariant &element : iterable)
        list.append(element);
    return list;
}

// A collection's elements by place: a table's are its rows (a list of cells each).
QVariantList placesOf(const MainConfigObject &object, const QVariant &value)
{
    if (shapeOf(object) != Shape::Table)
        return elementsOf(value);
    const QVariantList columns = elementsOf(value);
    QVariantList rows;
    for (const QVariant &column : columns) {
        const QVariantList cells = elementsOf(column);
        for (int r = 0; r < cells.size(); ++r) {
            if (rows.size() <= r)
                rows.append(QVariant(QVariantList()));
            QVariantList row = rows[r].toList();
            row.append(cells[r]);
            rows[r] = row;
        }
    }
    return rows;
}

// The controls write int, uint, bool, double or text, while a table may hold another of
// these for the same value: numbers compare by value, anything else mixed as text.
bool sameScalar(const QVariant &a, const QVariant &b)
{
    if (a.userType() == b.userType())
        return a == b;
    if (qtcompat::isNumeric(a) && qtcompat::isNumeric(b))
        return a.toDouble() == b.toDouble();
    if (!a.isValid() || !b.isValid())
        return false;
    return a.toString() == b.toString();
}

// A number stays a JSON number; a text that reads as a whole number is written as one.
QJsonValue cellToJson(const QByteArray &cell)
{
    bool ok = false;
    const int number = cell.toInt(&ok);
    if (ok && QByteArray::number(number) == cell)
        return number;
    return QString::fromLatin1(cell);
}

bool isEmptyElement(const QVariant &element)
{
    if (element.userType() == QMetaType::QByteArray)
        return element.toByteArray().count('\0') == element.toByteArray().size();
    if (element.userType() == QMetaType::QString)
        return element.toString().isEmpty();
    const QVariantList inner = elementsOf(element);
    if (!inner.isEmpty() || isSequence(element))
        return std::all_of(inner.begin(), inner.end(), isEmptyElement);
    return element.toUInt() == 0;
}
} // namespace

QVariant fromJson(const MainConfigObject &object, const QJsonValue &json)
{
    const QJsonArray array = json.toArray();
    switch (shapeOf(object)) {
    case Shape::UShorts:
        return vectorOf<quint16>(array, object.capacity,
                                 [](const QJsonValue &v) { return quint16(v.toInt()); });
    case Shape::UInts:
        return vectorOf<quint32>(array, object.capacity,
                                 [](const QJsonValue &v) { return quint32(v.toDouble()); });
    case Shape::Bytes:
        return vectorOf<QByteArray>(array, object.capacity,
                                    [](const QJsonValue &v) { return v.toString().toUtf8(); });
    case Shape::Strings:
        return vectorOf<QString>(array, object.capacity,
                                 [](const QJsonValue &v) { return v.toString(); });
    case Shape::Table: {
        // One vector per column, each `capacity` places long; the JSON lists rows.
        const int columns = object.columnListA.value<QList<uint>>().size();
        const int places = qMax(object.capacity, array.size());
        QVector<QVector<QByteArray>> table(columns, QVector<QByteArray>(places));
        for (int row = 0; row < array.size(); ++row) {
            const QJsonArray cells = array[row].toArray();
            for (int c = 0; c < columns && c < cells.size(); ++c)
                table[c][row] = cells[c].toVariant().toString().toLatin1();
        }
        return QVariant::fromValue(table);
    }
    case Shape::Scalar:
        break;
    }
    // Scalars keep the type their control writes back, so that stored and current compare.
    const QString control = json.toVariant().toString();
    if (ParameterTraits::of(object.type).intFlag)
        return json.toInt();
    if (json.isBool())
        return json.toBool();
    if (!object.options.isEmpty() || json.isString())
        return control;
    if (json.isDouble() && json.toDouble() != double(json.toInt()))
        return json.toDouble();
    return json.toInt();
}

void readCollectionShape(MainConfigObject &object, const QJsonObject &json)
{
    const QJsonArray columns = json.value(QLatin1String("columns")).toArray();
    if (!columns.isEmpty()) {
        QList<uint> list;
        for (const QJsonValue &column : columns)
            list.append(uint(column.toInt()));
        object.columnListA = QVariant::fromValue(list);
        object.columnListB = QVariant::fromValue(list);
    }
    const QJsonObject names = json.value(QLatin1String("names")).toObject();
    const ParameterTraits::Element element = ParameterTraits::of(object.type).element;
    if (!names.isEmpty() && element == ParameterTraits::Element::UInt) {
        QList<NamedUInt> list;
        for (auto it = names.begin(); it != names.end(); ++it)
            list.append({it.key().toUInt(), it.value().toString()});
        object.valueNames = QVariant::fromValue(list);
    } else if (!names.isEmpty() && element == ParameterTraits::Element::UShort) {
        QList<NamedUShort> list;
        for (auto it = names.begin(); it != names.end(); ++it)
            list.append({quint16(it.key().toUInt()), it.value().toString()});
        object.valueNames = QVariant::fromValue(list);
    }
}

QJsonValue toJson(const MainConfigObject &object, const QVariant &value)
{
    const Shape shape = shapeOf(object);
    if (shape == Shape::Scalar)
        return QJsonValue::fromVariant(value);
    // Collections leave out trailing free places: the loader fills up to the capacity.
    QVariantList places = placesOf(object, value);
    while (!places.isEmpty() && isEmptyElement(places.last()))
        places.removeLast();
    QJsonArray array;
    for (const QVariant &place : std::as_const(places)) {
        if (shape == Shape::Table) {
            QJsonArray cells;
            const QVariantList placeCells = place.toList();
            for (const QVariant &cell : placeCells)
                cells.append(cellToJson(cell.toByteArray()));
            array.append(cells);
        } else if (shape == Shape::Bytes) {
            array.append(QString::fromUtf8(place.toByteArray()));
        } else if (shape == Shape::Strings) {
            array.append(place.toString());
        } else {
            array.append(place.toDouble());
        }
    }
    return array;
}

void writeCollectionShape(const MainConfigObject &object, QJsonObject &json)
{
    const auto columns = object.columnListA.value<QList<uint>>();
    if (!columns.isEmpty()) {
        QJsonArray list;
        for (uint column : columns)
            list.append(int(column));
        json.insert(QLatin1String("columns"), list);
    }
    QJsonObject names;
    const auto uintNames = object.valueNames.value<QList<NamedUInt>>();
    for (const NamedUInt &named : uintNames)
        names.insert(QString::number(named.value), named.name);
    const auto ushortNames = object.valueNames.value<QList<NamedUShort>>();
    for (const NamedUShort &named : ushortNames)
        names.insert(QString::number(named.value), named.name);
    if (!names.isEmpty())
        json.insert(QLatin1String("names"), names);
}

bool multipleOfStep(const MainConfigObject &object, const QVariant &value)
{
    const auto step = quint32(object.step);
    return step == 0 || value.toUInt() % step == 0;
}

bool isCollection(const MainConfigObject &object)
{
    return shapeOf(object) != Shape::Scalar;
}

bool sameValue(const QVariant &a, const QVariant &b)
{
    const QVariantList left = elementsOf(a);
    const QVariantList right = elementsOf(b);
    if (left.isEmpty() && right.isEmpty() && !isSequence(a))
        return sameScalar(a, b);
    if (left.size() != right.size())
        return false;
    for (int i = 0; i < left.size(); ++i)
        if (!sameValue(left[i], right[i]))
            return false;
    return true;
}

QList<int> differingElements(const MainConfigObject &object, const QVariant &current,
                             const QVariant &stored)
{
    const QVariantList now = placesOf(object, current);
    const QVariantList before = placesOf(object, stored);
    QList<int> places;
    for (int i = 0; i < now.size(); ++i)
        if (i >= before.size() || !sameValue(now[i], before[i]))
            places.append(i);
    return places;
}

QList<int> invalidElements(const MainConfigObject &object, bool numericCells)
{
    const QVariantList elements = placesOf(object, object.value);
    QList<int> places;
    for (int i = 0; i < elements.size(); ++i) {
        if (isEmptyElement(elements[i]))
            continue;
        // A repeated element, or for a table a repeated row identifier, is invalid.
        const bool table = shapeOf(object) == Shape::Table;
        auto key = [table](const QVariant &element) {
            return table ? element.toList().value(0) : element;
        };
        bool repeated = false;
        for (int j = 0; j < i && !repeated; ++j)
            repeated =
                !isEmptyElement(key(elements[j])) && sameValue(key(elements[i]), key(elements[j]));
        bool badCell = false;
        if (numericCells) {
            const QVariantList cells = elements[i].toList();
            for (const QVariant &cell : cells) {
                const QByteArray text = cell.toByteArray();
                bool ok = true;
                if (!text.isEmpty())
                    text.toDouble(&ok);
                badCell = badCell || !ok;
            }
        }
        if (repeated || badCell)
            places.append(i);
    }
    return places;
}

QVariantList occupiedElements(const MainConfigObject &object, const QVariant &value)
{
    QVariantList elements = placesOf(object, value);
    elements.erase(std::remove_if(elements.begin(), elements.end(), isEmptyElement),
                   elements.end());
    return elements;
}

ElementChanges elementChanges(const MainConfigObject &object, const QVariant &current,
                              const QVariant &stored)
{
    const bool table = shapeOf(object) == Shape::Table;
    auto key = [table](const QVariant &element) {
        return table ? element.toList().value(0) : element;
    };
    // The element of `elements` with the key of `element`, or an invalid one.
    auto match = [&key](const QVariantList &elements, const QVariant &element) {
        for (const QVariant &candidate : elements)
            if (sameValue(key(candidate), key(element)))
                return candidate;
        return QVariant();
    };
    const QVariantList now = occupiedElements(object, current);
    const QVariantList before = occupiedElements(object, stored);
    ElementChanges changes;
    changes.count = int(now.size());
    for (const QVariant &element : now) {
        const QVariant old = match(before, element);
        if (!old.isValid())
            ++changes.added;
        else if (!sameValue(old, element))
            ++changes.changed;
    }
    for (const QVariant &element : before)
        if (!match(now, element).isValid())
            ++changes.removed;
    return changes;
}

bool containsElement(const MainConfigObject &object, const QVariant &collection,
                     const QVariant &element)
{
    const QVariantList places = placesOf(object, collection);
    for (const QVariant &stored : places) {
        // A table asks about a row by its identifier, the first cell.
        const QVariant candidate =
            shapeOf(object) == Shape::Table ? stored.toList().value(0) : stored;
        if (sameValue(candidate, element))
            return true;
    }
    return false;
}

} // namespace parametervalues
