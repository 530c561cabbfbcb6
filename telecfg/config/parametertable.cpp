// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/config/collectiontypes.h"
#include "telecfg/config/parametervalues_p.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>
#include <utility>

using namespace parametervalues;

namespace {
QLatin1String key(const char *name)
{
    return QLatin1String(name);
}

// A version map is a number (key 0) or an object by version key.
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

QJsonValue versionJson(const QMap<int, int> &map)
{
    if (map.size() == 1 && map.contains(0))
        return map.value(0);
    QJsonObject byKey;
    for (auto it = map.begin(); it != map.end(); ++it)
        byKey.insert(QString::number(it.key()), it.value());
    return byKey;
}

// JSON numbers are doubles; whole ones become ints, as a host's table would hold them.
QVariant scalar(const QJsonValue &json)
{
    if (json.isDouble() && json.toDouble() == double(json.toInt()))
        return json.toInt();
    return json.toVariant();
}

QJsonValue scalarJson(const QVariant &value)
{
    return value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue();
}

bool readNumber(const QVariant &value, double *number)
{
    bool ok = false;
    *number = QLocale::system().toDouble(value.toString(), &ok);
    if (!ok)
        *number = value.toString().toDouble(&ok);
    return ok;
}
} // namespace

struct ParameterTable::Private
{
    struct Entry
    {
        QVariant stored;
        Rules rules;
        Presentation presentation;
        int group = 0;
    };
    QMap<int, MainConfigObject> records;
    QMap<int, Entry> entries;
    QList<int> order;
};

ParameterTable::ParameterTable(QObject *parent) : QObject(parent), d(std::make_unique<Private>())
{
    registerCollectionTypes();
}

ParameterTable::~ParameterTable() = default;

void ParameterTable::clear()
{
    empty();
    emit reset();
}

void ParameterTable::empty()
{
    d->records.clear();
    d->entries.clear();
    d->order.clear();
    title.clear();
    pages.clear();
    versions.clear();
    hardware.clear();
}

bool ParameterTable::loadJson(const QByteArray &json, QString *error)
{
    empty();
    auto fail = [this, error](const QString &why) {
        empty();
        emit reset();
        if (error)
            *error = why;
        return false;
    };
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (!document.isObject())
        return fail(parseError.error == QJsonParseError::NoError
                        ? QStringLiteral("the table is no JSON object")
                        : parseError.errorString());
    const QJsonObject root = document.object();
    title = root.value(key("title")).toString();
    const QJsonArray pageList = root.value(key("pages")).toArray();
    for (const auto &page : pageList)
        pages.append(page.toString());
    const QJsonArray versionList = root.value(key("versions")).toArray();
    for (const auto &version : versionList)
        versions.append(version.toInt());
    const QJsonArray hardwareList = root.value(key("hardware")).toArray();
    for (const auto &entry : hardwareList)
        hardware.append({entry[key("id")].toInt(), entry[key("name")].toString()});
    setVersion(quint32(root.value(key("version")).toInt()));

    const QJsonArray parameterList = root.value(key("parameters")).toArray();
    for (const auto &item : parameterList) {
        const QJsonObject json = item.toObject();
        const int ref = json.value(key("ref")).toInt();
        if (ref <= 2 || contains(ref))
            return fail(QStringLiteral("parameter %1 is reserved or repeated").arg(ref));
        MainConfigObject object;
        object.type = json.value(key("type")).toInt();
        object.toolTip = json.value(key("toolTip")).toString();
        object.step = json.value(key("step")).toInt(1);
        object.capacity = json.value(key("capacity")).toInt();
        object.minimum = scalar(json.value(key("minimum")));
        object.maximum = scalar(json.value(key("maximum")));
        object.minVersions = versionMap(json.value(key("minVersion")));
        object.maxVersions = versionMap(json.value(key("maxVersion")));
        object.versionKey = json.value(key("versionKey")).toInt();
        object.licenceGate = json.value(key("licence")).toInt();
        const QJsonArray hardwareIds = json.value(key("hardware")).toArray();
        for (const auto &id : hardwareIds)
            object.hardwareIds.append(id.toInt());
        const QJsonArray options = json.value(key("options")).toArray();
        for (int i = 0; i < options.size(); ++i)
            object.options[i] = {options[i][0].toString(), options[i][1].toString()};
        object.columnTitles = json.value(key("columnTitles")).toVariant().toStringList();
        readCollectionShape(object, json);
        object.value = fromJson(object, json.value(key("value")));
        addRecord(ref, object);
        if (json.contains(key("stored")))
            d->entries[ref].stored = fromJson(object, json.value(key("stored")));
        setGroup(ref, json.value(key("group")).toInt());

        const QJsonObject ruleJson = json.value(key("rules")).toObject();
        Rules rules;
        rules.minimum = scalar(ruleJson.value(key("min")));
        rules.maximum = scalar(ruleJson.value(key("max")));
        rules.maxLength = ruleJson.value(key("maxLength")).toInt(-1);
        rules.pattern = ruleJson.value(key("pattern")).toString();
        rules.numericCells = ruleJson.value(key("numericCells")).toBool();
        setRules(ref, rules);
        Presentation presentation;
        presentation.page = json.value(key("page")).toString();
        presentation.label = json.value(key("label")).toString();
        presentation.control = json.value(key("control")).toString();
        presentation.text = json.value(key("text")).toString();
        presentation.decimals = json.value(key("decimals")).toInt();
        setPresentation(ref, presentation);
    }
    emit reset();
    return true;
}

bool ParameterTable::loadJsonFile(const QString &path, QString *error)
{
    QFile file(path);
    QString why;
    if (file.open(QIODevice::ReadOnly)) {
        if (loadJson(file.readAll(), &why))
            return true;
    } else {
        why = file.errorString();
        clear();
    }
    if (error)
        *error = path + QStringLiteral(": ") + why;
    return false;
}

bool ParameterTable::saveJsonFile(const QString &path, QString *error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(json(true)) >= 0 && file.commit()) {
        save();
        return true;
    }
    if (error)
        *error = path + QStringLiteral(": ") + file.errorString();
    return false;
}

QByteArray ParameterTable::saveJson() const
{
    return json(false);
}

QByteArray ParameterTable::json(bool currentAsStored) const
{
    QJsonObject root;
    root.insert(key("title"), title);
    root.insert(key("version"), qint64(version()));
    QJsonArray versionList, pageList, hardwareList, parameterList;
    for (int v : versions)
        versionList.append(v);
    for (const QString &page : pages)
        pageList.append(page);
    for (const Hardware &entry : hardware)
        hardwareList.append(QJsonObject{{key("id"), entry.id}, {key("name"), entry.name}});
    root.insert(key("versions"), versionList);
    root.insert(key("hardware"), hardwareList);
    root.insert(key("pages"), pageList);

    for (int ref : std::as_const(d->order)) {
        const MainConfigObject &object = d->records.constFind(ref).value();
        const Private::Entry &entry = d->entries.constFind(ref).value();
        QJsonObject json{{key("ref"), ref}};
        auto put = [&json](const char *name, const QJsonValue &value, bool when) {
            if (when)
                json.insert(key(name), value);
        };
        const Presentation &shown = entry.presentation;
        put("page", shown.page, !shown.page.isEmpty());
        put("control", shown.control, !shown.control.isEmpty());
        put("label", shown.label, !shown.label.isEmpty());
        put("text", shown.text, !shown.text.isEmpty());
        put("decimals", shown.decimals, shown.decimals != 0);
        put("type", object.type, object.type != 0);
        put("toolTip", object.toolTip, !object.toolTip.isEmpty());
        put("step", object.step, object.step != 1);
        put("capacity", object.capacity, object.capacity != 0);
        put("minimum", scalarJson(object.minimum), object.minimum.isValid());
        put("maximum", scalarJson(object.maximum), object.maximum.isValid());
        const bool defaultRange = object.minVersions == QMap<int, int>{{0, 0}};
        put("minVersion", versionJson(object.minVersions), !defaultRange);
        put("maxVersion", versionJson(object.maxVersions), !object.maxVersions.isEmpty());
        put("versionKey", object.versionKey, object.versionKey != 0);
        put("licence", object.licenceGate, object.licenceGate != 0);
        put("group", entry.group, entry.group != 0);
        QJsonArray ids;
        for (int id : object.hardwareIds)
            ids.append(id);
        put("hardware", ids, !ids.isEmpty());
        QJsonArray options;
        for (const auto &option : object.options)
            options.append(QJsonArray{option.first, option.second});
        put("options", options, !options.isEmpty());
        put("columnTitles", QJsonArray::fromStringList(object.columnTitles),
            !object.columnTitles.isEmpty());
        writeCollectionShape(object, json);
        json.insert(key("value"), toJson(object, object.value));
        if (!currentAsStored && !sameValue(object.value, entry.stored))
            json.insert(key("stored"), toJson(object, entry.stored));

        QJsonObject rules;
        const Rules &rule = entry.rules;
        if (rule.minimum.isValid())
            rules.insert(key("min"), scalarJson(rule.minimum));
        if (rule.maximum.isValid())
            rules.insert(key("max"), scalarJson(rule.maximum));
        if (rule.maxLength >= 0)
            rules.insert(key("maxLength"), rule.maxLength);
        if (!rule.pattern.isEmpty())
            rules.insert(key("pattern"), rule.pattern);
        if (rule.numericCells)
            rules.insert(key("numericCells"), true);
        put("rules", rules, !rules.isEmpty());
        parameterList.append(json);
    }
    root.insert(key("parameters"), parameterList);
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

MainConfigObject &ParameterTable::addRecord(int ref, const MainConfigObject &record)
{
    if (!d->entries.contains(ref))
        d->order.append(ref);
    MainConfigObject &object = d->records[ref] = record;
    if (object.minVersions.isEmpty())
        object.minVersions[0] = 0;
    d->entries[ref].stored = object.value;
    return object;
}

bool ParameterTable::contains(int ref) const
{
    return d->entries.contains(ref);
}

QList<int> ParameterTable::parameters() const
{
    return d->order;
}

QVariant ParameterTable::storedValue(int ref) const
{
    return d->entries.value(ref).stored;
}

void ParameterTable::setStoredValue(int ref, const QVariant &value)
{
    QVariant &stored = d->entries[ref].stored;
    const bool changed = !sameValue(stored, value) || !stored.isValid();
    stored = value;
    if (changed)
        emit storedValueChanged(ref);
}

ParameterTable::Rules ParameterTable::rules(int ref) const
{
    return d->entries.value(ref).rules;
}

ParameterTable::Rules ParameterTable::validityRules(int ref) const
{
    // Looked up in place: the table judges validity at every paint.
    static const Private::Entry none;
    const auto found = d->entries.constFind(ref);
    const Private::Entry &entry = found == d->entries.constEnd() ? none : *found;
    Rules rules = entry.rules;
    const auto record = d->records.constFind(ref);
    if (record == d->records.constEnd() || rules.minimum.isValid() || rules.maximum.isValid() ||
        entry.group != 0 || isCollection(*record))
        return rules;
    if (record->minimum.isValid() && record->maximum.isValid()) {
        rules.minimum = record->minimum;
        rules.maximum = record->maximum;
    }
    return rules;
}

void ParameterTable::setRules(int ref, const Rules &rules)
{
    d->entries[ref].rules = rules;
}

ParameterTable::Presentation ParameterTable::presentation(int ref) const
{
    return d->entries.value(ref).presentation;
}

void ParameterTable::setPresentation(int ref, const Presentation &presentation)
{
    d->entries[ref].presentation = presentation;
}

void ParameterTable::setGroup(int ref, int group)
{
    d->entries[ref].group = group;
}

int ParameterTable::group(int ref) const
{
    return d->entries.value(ref).group;
}

quint32 ParameterTable::version() const
{
    return d->records.value(2).value.toUInt();
}

void ParameterTable::setVersion(quint32 version)
{
    d->records[2].value = version;
}

void ParameterTable::save()
{
    for (int ref : std::as_const(d->order)) {
        QVariant &stored = d->entries[ref].stored;
        if (sameValue(stored, d->records[ref].value))
            continue;
        stored = d->records[ref].value;
        emit storedValueChanged(ref);
    }
}

void ParameterTable::revert()
{
    for (int ref : std::as_const(d->order)) {
        if (sameValue(d->records[ref].value, d->entries[ref].stored))
            continue;
        d->records[ref].value = d->entries[ref].stored;
        emit valueChanged(ref);
    }
}

QList<int> ParameterTable::modifiedParameters()
{
    QList<int> refs;
    for (int ref : std::as_const(d->order))
        if (isModified(ref))
            refs.append(ref);
    return refs;
}

QList<int> ParameterTable::invalidParameters()
{
    QList<int> refs;
    for (int ref : std::as_const(d->order))
        if (!isValid(ref))
            refs.append(ref);
    return refs;
}

MainConfigObject &ParameterTable::object(int ref)
{
    return d->records[ref];
}

QVariant ParameterTable::value(int ref)
{
    return d->records[ref].value;
}

void ParameterTable::setValue(int ref, QVariant v)
{
    const bool changed = !sameValue(d->records[ref].value, v);
    const int group = d->entries.value(ref).group;
    QList<int> members;
    if (group != 0) {
        for (auto it = d->entries.cbegin(); it != d->entries.cend(); ++it) {
            if (it.value().group != group || it.key() == ref)
                continue;
            QVariant &value = d->records[it.key()].value;
            if (!sameValue(value, v))
                members.append(it.key());
            value = v;
        }
    }
    d->records[ref].value = v;
    if (changed)
        emit valueChanged(ref);
    for (int member : std::as_const(members))
        emit valueChanged(member);
}

bool ParameterTable::isValid(int ref)
{
    const MainConfigObject &record = d->records[ref];
    const Rules rule = validityRules(ref);
    if (isCollection(record))
        return invalidElements(record, rule.numericCells).isEmpty();
    if (!multipleOfStep(record, record.value))
        return false;
    const QString text = record.value.toString();
    if (rule.minimum.isValid() || rule.maximum.isValid()) {
        double number = 0;
        if (!readNumber(record.value, &number))
            return false;
        if (rule.minimum.isValid() && number < rule.minimum.toDouble())
            return false;
        if (rule.maximum.isValid() && number > rule.maximum.toDouble())
            return false;
    }
    if (rule.maxLength >= 0 && text.size() > rule.maxLength)
        return false;
    if (!rule.pattern.isEmpty()) {
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(rule.pattern));
        if (!pattern.match(text).hasMatch())
            return false;
    }
    return true;
}

bool ParameterTable::isModified(int ref)
{
    return !sameValue(d->records[ref].value, d->entries.value(ref).stored);
}

bool ParameterTable::matchesStored(int ref, QVariant candidate)
{
    return sameValue(candidate, d->entries.value(ref).stored);
}

QList<int> ParameterTable::invalidItems(int ref)
{
    return invalidElements(d->records[ref], d->entries.value(ref).rules.numericCells);
}

QList<int> ParameterTable::modifiedItems(int ref)
{
    return differingElements(d->records[ref], d->records[ref].value, d->entries.value(ref).stored);
}

bool ParameterTable::isStoredItem(int ref, QVariant element)
{
    return containsElement(d->records[ref], d->entries.value(ref).stored, element);
}

bool ParameterTable::sameValue(const QVariant &a, const QVariant &b)
{
    return parametervalues::sameValue(a, b);
}

namespace {
template <class Named, class Value> QString nameOf(Value value, const QList<Named> &names)
{
    for (const Named &named : names)
        if (named.value == value)
            return named.name;
    return QString();
}

template <class Named, class Value> Value valueOf(const QString &text, const QList<Named> &names)
{
    for (const Named &named : names)
        if (named.name == text)
            return named.value;
    return 0;
}
} // namespace

QString ParameterTable::nameOfUInt(quint32 value, QList<NamedUInt> names)
{
    return nameOf(value, names);
}

QString ParameterTable::nameOfUShort(quint16 value, QList<NamedUShort> names)
{
    return nameOf(value, names);
}

quint16 ParameterTable::ushortOfName(QString text, QList<NamedUShort> names)
{
    return valueOf<NamedUShort, quint16>(text, names);
}

quint32 ParameterTable::uintOfName(QString text, QList<NamedUInt> names)
{
    return valueOf<NamedUInt, quint32>(text, names);
}
