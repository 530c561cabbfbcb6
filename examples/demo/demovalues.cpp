#include "demovalues.h"

#include <QJsonArray>
#include <QSequentialIterable>
#include <QVector>
#include <algorithm>

namespace {
// Collection types by the record's type code; tables carry no type of their own.
enum class Shape { Scalar, UShorts, UInts, Bytes, Strings, Table };

Shape shapeOf(const MainConfigObject &object)
{
    if (object.columnListA.isValid())
        return Shape::Table;
    switch (object.type) {
    case 8:
        return Shape::UShorts;
    case 24:
    case 29:
        return Shape::UInts;
    case 20:
        return Shape::Bytes;
    case 13:
        return Shape::Strings;
    default:
        return Shape::Scalar;
    }
}

template <class T, class Convert>
QVariant vectorOf(const QJsonArray &array, int capacity, Convert convert)
{
    QVector<T> vector(qMax(capacity, array.size()));
    for (int i = 0; i < array.size(); ++i)
        vector[i] = convert(array[i]);
    return QVariant::fromValue(vector);
}

QVariantList elementsOf(const QVariant &value)
{
    QVariantList list;
    if (!value.canConvert<QVariantList>() || value.userType() == QMetaType::QString)
        return list;
    const QSequentialIterable iterable = value.value<QSequentialIterable>();
    for (const QVariant &element : iterable)
        list.append(element);
    return list;
}

bool isEmptyElement(const QVariant &element)
{
    if (element.userType() == QMetaType::QByteArray)
        return element.toByteArray().count('\0') == element.toByteArray().size();
    if (element.userType() == QMetaType::QString)
        return element.toString().isEmpty();
    const QVariantList inner = elementsOf(element);
    if (!inner.isEmpty() || element.canConvert<QVariantList>())
        return std::all_of(inner.begin(), inner.end(), isEmptyElement);
    return element.toUInt() == 0;
}
} // namespace

QVariant demoValue(const MainConfigObject &object, const QJsonValue &json)
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
        return vectorOf<QByteArray>(array, object.capacity, [](const QJsonValue &v) {
            return v.toString().toUtf8();
        });
    case Shape::Strings:
        return vectorOf<QString>(array, object.capacity,
                                 [](const QJsonValue &v) { return v.toString(); });
    case Shape::Table: {
        const int columns = object.columnListA.value<QList<uint>>().size();
        return vectorOf<QVector<QByteArray>>(array, object.capacity, [columns](const QJsonValue &v) {
            QVector<QByteArray> row(columns);
            const QJsonArray cells = v.toArray();
            for (int c = 0; c < columns && c < cells.size(); ++c)
                row[c] = cells[c].toVariant().toString().toUtf8();
            return row;
        });
    }
    case Shape::Scalar:
        break;
    }
    // Scalars keep the type their control writes back, so that stored and current compare.
    const QString control = json.toVariant().toString();
    if (object.type == 22)
        return json.toInt();
    if (json.isBool())
        return json.toBool();
    if (!object.options.isEmpty() || json.isString())
        return control;
    if (json.isDouble() && json.toDouble() != double(json.toInt()))
        return json.toDouble();
    return json.toInt();
}

void applyCollectionShape(MainConfigObject &object, const QJsonObject &json)
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
    if (!names.isEmpty() && object.type == 24) {
        QList<NamedUInt> list;
        for (auto it = names.begin(); it != names.end(); ++it)
            list.append({it.key().toUInt(), it.value().toString()});
        object.valueNames = QVariant::fromValue(list);
    } else if (!names.isEmpty() && object.type == 8) {
        QList<NamedUShort> list;
        for (auto it = names.begin(); it != names.end(); ++it)
            list.append({quint16(it.key().toUInt()), it.value().toString()});
        object.valueNames = QVariant::fromValue(list);
    }
}

bool isCollection(const MainConfigObject &object)
{
    return shapeOf(object) != Shape::Scalar;
}

bool sameValue(const QVariant &a, const QVariant &b)
{
    const QVariantList left = elementsOf(a);
    const QVariantList right = elementsOf(b);
    if (left.isEmpty() && right.isEmpty() && !a.canConvert<QVariantList>())
        return a == b;
    if (left.size() != right.size())
        return false;
    for (int i = 0; i < left.size(); ++i)
        if (!sameValue(left[i], right[i]))
            return false;
    return true;
}

QList<int> differingElements(const QVariant &current, const QVariant &stored)
{
    const QVariantList now = elementsOf(current);
    const QVariantList before = elementsOf(stored);
    QList<int> places;
    for (int i = 0; i < now.size(); ++i)
        if (i >= before.size() || !sameValue(now[i], before[i]))
            places.append(i);
    return places;
}

QList<int> invalidElements(const MainConfigObject &object, const QJsonObject &rules)
{
    const QVariantList elements = elementsOf(object.value);
    QList<int> places;
    for (int i = 0; i < elements.size(); ++i) {
        if (isEmptyElement(elements[i]))
            continue;
        bool repeated = false;
        for (int j = 0; j < i && !repeated; ++j)
            repeated = sameValue(elements[i], elements[j]);
        bool badCell = false;
        if (rules.value(QLatin1String("numericCells")).toBool()) {
            for (const QVariant &cell : elementsOf(elements[i])) {
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

bool containsElement(const QVariant &collection, const QVariant &element)
{
    for (const QVariant &stored : elementsOf(collection))
        if (sameValue(stored, element))
            return true;
    return false;
}
