// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "demotable.h"
#include "demovalues.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace {
QMap<int, int> versionMap(const QJsonValue &json)
{
    QMap<int, int> map;
    if (json.isDouble())
        map[0] = json.toInt();
    const QJsonObject byKey = json.toObject();
    for (auto it = byKey.begin(); it != byKey.end(); ++it)
        map[it.key().toInt()] = it.value().toInt();
    return map;
}
// JSON numbers are doubles; whole ones become ints, as a host's table would hold them.
QVariant scalar(const QJsonValue &json)
{
    if (json.isDouble() && json.toDouble() == double(json.toInt()))
        return json.toInt();
    return json.toVariant();
}
} // namespace

bool DemoTable::load(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot open %1: %2").arg(path, file.errorString());
        return false;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (!document.isObject()) {
        *error = QStringLiteral("%1: %2").arg(path, parseError.errorString());
        return false;
    }
    const QJsonObject root = document.object();
    title = root.value(QLatin1String("title")).toString();
    for (const QJsonValue &page : root.value(QLatin1String("pages")).toArray())
        pages.append(page.toString());
    for (const QJsonValue &version : root.value(QLatin1String("versions")).toArray())
        versions.append(version.toInt());
    for (const QJsonValue &entry : root.value(QLatin1String("hardware")).toArray())
        hardware.append({entry[QLatin1String("id")].toInt(), entry[QLatin1String("name")].toString()});

    records[2].value = quint32(root.value(QLatin1String("version")).toInt());
    for (const QJsonValue &entry : root.value(QLatin1String("parameters")).toArray()) {
        const QJsonObject json = entry.toObject();
        Parameter parameter;
        parameter.ref = json.value(QLatin1String("ref")).toInt();
        if (parameter.ref <= 2 || records.contains(parameter.ref)) {
            *error = QStringLiteral("%1: parameter %2 is reserved or repeated")
                         .arg(path)
                         .arg(parameter.ref);
            return false;
        }
        parameter.page = json.value(QLatin1String("page")).toString();
        parameter.label = json.value(QLatin1String("label")).toString();
        parameter.control = json.value(QLatin1String("control")).toString();
        parameter.text = json.value(QLatin1String("text")).toString();
        parameter.decimals = json.value(QLatin1String("decimals")).toInt();
        parameter.rules = json.value(QLatin1String("rules")).toObject();

        MainConfigObject &object = records[parameter.ref];
        object.type = json.value(QLatin1String("type")).toInt();
        object.toolTip = json.value(QLatin1String("toolTip")).toString();
        object.step = json.value(QLatin1String("step")).toInt(1);
        object.capacity = json.value(QLatin1String("capacity")).toInt();
        object.minimum = scalar(json.value(QLatin1String("minimum")));
        object.maximum = scalar(json.value(QLatin1String("maximum")));
        if (json.contains(QLatin1String("group")))
            groups[json.value(QLatin1String("group")).toInt()].append(parameter.ref);
        object.minVersions = versionMap(json.value(QLatin1String("minVersion")));
        if (object.minVersions.isEmpty())
            object.minVersions[0] = 0;
        object.maxVersions = versionMap(json.value(QLatin1String("maxVersion")));
        object.licenceGate = json.value(QLatin1String("licence")).toInt();
        for (const QJsonValue &id : json.value(QLatin1String("hardware")).toArray())
            object.hardwareIds.append(id.toInt());
        const QJsonArray options = json.value(QLatin1String("options")).toArray();
        for (int i = 0; i < options.size(); ++i)
            object.options[i] = {options[i][0].toString(), options[i][1].toString()};
        object.columnTitles = json.value(QLatin1String("columnTitles")).toVariant().toStringList();
        applyCollectionShape(object, json);
        object.value = demoValue(object, json.value(QLatin1String("value")));
        stored[parameter.ref] = json.contains(QLatin1String("stored"))
                                    ? demoValue(object, json.value(QLatin1String("stored")))
                                    : object.value;
        rules[parameter.ref] = parameter.rules;
        parameters.append(parameter);
    }
    return true;
}

void DemoTable::setVersion(quint32 version)
{
    records[2].value = version;
}

void DemoTable::save()
{
    for (const Parameter &parameter : qAsConst(parameters))
        stored[parameter.ref] = records[parameter.ref].value;
}

void DemoTable::revert()
{
    for (const Parameter &parameter : qAsConst(parameters))
        records[parameter.ref].value = stored[parameter.ref];
}

int DemoTable::modifiedCount()
{
    int count = 0;
    for (const Parameter &parameter : qAsConst(parameters))
        count += isModified(parameter.ref) ? 1 : 0;
    return count;
}

int DemoTable::invalidCount()
{
    int count = 0;
    for (const Parameter &parameter : qAsConst(parameters))
        count += isValid(parameter.ref) ? 0 : 1;
    return count;
}

MainConfigObject &DemoTable::object(int ref)
{
    return records[ref];
}

QVariant DemoTable::value(int ref)
{
    return records[ref].value;
}

void DemoTable::setValue(int ref, QVariant v)
{
    // The choices of one radio group are separate parameters sharing one value.
    for (const QList<int> &group : qAsConst(groups)) {
        if (group.contains(ref)) {
            for (int member : group)
                records[member].value = v;
            if (onWrite)
                onWrite(ref);
            return;
        }
    }
    records[ref].value = v;
    if (onWrite)
        onWrite(ref);
}

bool DemoTable::isValid(int ref)
{
    const QJsonObject rule = rules.value(ref);
    const QVariant current = records[ref].value;
    if (isCollection(records[ref]))
        return invalidItems(ref).isEmpty();
    if (rule.contains(QLatin1String("min")) || rule.contains(QLatin1String("max"))) {
        bool ok = false;
        const double number = QLocale::system().toDouble(current.toString(), &ok);
        const double plain = ok ? number : current.toString().toDouble(&ok);
        if (!ok)
            return false;
        if (rule.contains(QLatin1String("min")) && plain < rule.value(QLatin1String("min")).toDouble())
            return false;
        if (rule.contains(QLatin1String("max")) && plain > rule.value(QLatin1String("max")).toDouble())
            return false;
    }
    if (rule.contains(QLatin1String("maxLength")) &&
        current.toString().size() > rule.value(QLatin1String("maxLength")).toInt())
        return false;
    if (rule.contains(QLatin1String("pattern"))) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(
            rule.value(QLatin1String("pattern")).toString()));
        if (!pattern.match(current.toString()).hasMatch())
            return false;
    }
    return true;
}

bool DemoTable::isModified(int ref)
{
    return !sameValue(records[ref].value, stored.value(ref));
}

bool DemoTable::matchesStored(int ref, QVariant candidate)
{
    return sameValue(candidate, stored.value(ref));
}

QList<int> DemoTable::invalidItems(int ref)
{
    return invalidElements(records[ref], rules.value(ref));
}

QList<int> DemoTable::modifiedItems(int ref)
{
    return differingElements(records[ref], records[ref].value, stored.value(ref));
}

bool DemoTable::isStoredItem(int ref, QVariant element)
{
    return containsElement(records[ref], stored.value(ref), element);
}

QString DemoTable::nameOfUInt(quint32 value, QList<NamedUInt> names)
{
    for (const NamedUInt &named : names)
        if (named.value == value)
            return named.name;
    return QString();
}

QString DemoTable::nameOfUShort(quint16 value, QList<NamedUShort> names)
{
    for (const NamedUShort &named : names)
        if (named.value == value)
            return named.name;
    return QString();
}

quint16 DemoTable::ushortOfName(QString text, QList<NamedUShort> names)
{
    for (const NamedUShort &named : names)
        if (named.name == text)
            return named.value;
    return 0;
}

quint32 DemoTable::uintOfName(QString text, QList<NamedUInt> names)
{
    for (const NamedUInt &named : names)
        if (named.name == text)
            return named.value;
    return 0;
}
