// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/config/parametervalues_p.h"
#include "telecfg/controls/statecue_p.h"
#include "telecfg/form/valuetext_p.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QRadioButton>

namespace valuetext {
namespace {
// The translation context of the texts below.
class ValueText
{
    Q_DECLARE_TR_FUNCTIONS(ValueText)

public:
    static QString reordered() { return tr("zmieniona kolejność"); }
    static QString parameter(int ref) { return tr("Parametr %1").arg(ref); }
};

// Polish chooses among three forms where English has two; each form is a text of its own, so
// that the words read right without a catalogue, and each carries the number for the
// catalogue's plural forms.
struct PluralForm
{
    const char *source;
    const char *comment;
};
using PluralForms = PluralForm[3]; // one, few, many

const PluralForms elementForms = {QT_TRANSLATE_N_NOOP3("ValueText", "%n element", "one"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n elementy", "few"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n elementów", "many")};
const PluralForms addedForms = {QT_TRANSLATE_N_NOOP3("ValueText", "%n dodany", "one"),
                                QT_TRANSLATE_N_NOOP3("ValueText", "%n dodane", "few"),
                                QT_TRANSLATE_N_NOOP3("ValueText", "%n dodanych", "many")};
const PluralForms removedForms = {QT_TRANSLATE_N_NOOP3("ValueText", "%n usunięty", "one"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n usunięte", "few"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n usuniętych", "many")};
const PluralForms changedForms = {QT_TRANSLATE_N_NOOP3("ValueText", "%n zmieniony", "one"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n zmienione", "few"),
                                  QT_TRANSLATE_N_NOOP3("ValueText", "%n zmienionych", "many")};

QString plural(const PluralForms &forms, int n)
{
    const int units = n % 10;
    const int tens = n % 100;
    int form = 2;
    if (n == 1)
        form = 0;
    else if (units >= 2 && units <= 4 && (tens < 12 || tens > 14))
        form = 1;
    return QCoreApplication::translate("ValueText", forms[form].source, forms[form].comment, n);
}

ParameterTable::Presentation presentationOf(MainConfigIFace &table, int ref)
{
    if (auto *own = dynamic_cast<ParameterTable *>(&table))
        return own->presentation(ref);
    return {};
}

// Check boxes and radio buttons are known by their bound control, else by the presentation;
// a radio button's type code alone is shared with whole numbers of a line edit.
bool isCheckBox(const MainConfigObject &record, const QString &control)
{
    return qobject_cast<QCheckBox *>(record.control) || control == QLatin1String("checkbox") ||
           ParameterTraits::of(record.type).intFlag;
}

bool isRadioButton(const MainConfigObject &record, const QString &control)
{
    return qobject_cast<QRadioButton *>(record.control) || control == QLatin1String("radiobutton");
}

QString elementText(MainConfigIFace &table, const MainConfigObject &record, const QVariant &element)
{
    if (record.columnListA.isValid()) {
        QStringList cells;
        const QVariantList row = element.toList();
        for (const QVariant &cell : row)
            cells.append(QString::fromLatin1(cell.toByteArray()));
        return cells.join(QStringLiteral(", "));
    }
    using E = ParameterTraits::Element;
    switch (ParameterTraits::of(record.type).element) {
    case E::Network:
        return networkText(element.toUInt());
    case E::UShort: {
        const auto names = record.valueNames.value<QList<NamedUShort>>();
        QString named =
            names.isEmpty() ? QString() : table.nameOfUShort(quint16(element.toUInt()), names);
        if (!named.isEmpty())
            return named;
        break;
    }
    case E::UInt: {
        const auto names = record.valueNames.value<QList<NamedUInt>>();
        QString named = names.isEmpty() ? QString() : table.nameOfUInt(element.toUInt(), names);
        if (!named.isEmpty()) // else unnamed: the number itself
            return named;
        break;
    }
    case E::Bytes: {
        QByteArray bytes = element.toByteArray();
        while (bytes.endsWith('\0'))
            bytes.chop(1);
        return QString::fromLatin1(bytes);
    }
    case E::String:
    case E::None:
        break;
    }
    return element.toString();
}
} // namespace

QString name(MainConfigIFace &table, int ref)
{
    const MainConfigObject &record = table.object(ref);
    QString shown = statecue::shownName(record.control, record.label);
    if (!shown.isEmpty())
        return shown;
    const ParameterTable::Presentation presentation = presentationOf(table, ref);
    QStringList parts;
    for (const QString &part : {presentation.label, presentation.text})
        if (!part.isEmpty())
            parts.append(part);
    if (!parts.isEmpty())
        return parts.join(QStringLiteral(": "));
    return ValueText::parameter(ref);
}

QString text(MainConfigIFace &table, int ref, const QVariant &value)
{
    if (!value.isValid())
        return QString();
    const MainConfigObject &record = table.object(ref);
    if (parametervalues::isCollection(record))
        return plural(elementForms, int(parametervalues::occupiedElements(record, value).size()));
    const QString control = presentationOf(table, ref).control;
    if (isRadioButton(record, control))
        return statecue::checkedWords(parametervalues::sameValue(value, record.minimum));
    if (isCheckBox(record, control) || value.userType() == QMetaType::Bool)
        return statecue::checkedWords(value.toBool());
    QString shown = value.toString();
    for (const auto &option : record.options)
        if (option.second == shown)
            return option.first;
    return shown;
}

QString changeText(MainConfigIFace &table, int ref, const QVariant &stored, const QVariant &current)
{
    const MainConfigObject &record = table.object(ref);
    if (!parametervalues::isCollection(record) || !current.isValid())
        return text(table, ref, current);
    const parametervalues::ElementChanges changes =
        parametervalues::elementChanges(record, current, stored);
    QStringList parts;
    if (changes.added > 0)
        parts.append(plural(addedForms, changes.added));
    if (changes.removed > 0)
        parts.append(plural(removedForms, changes.removed));
    if (changes.changed > 0)
        parts.append(plural(changedForms, changes.changed));
    if (parts.isEmpty() && !parametervalues::sameValue(current, stored))
        parts.append(ValueText::reordered());
    const QString count = plural(elementForms, changes.count);
    return parts.isEmpty() ? count
                           : count + QStringLiteral(": ") + parts.join(QStringLiteral(", "));
}

QStringList elementTexts(MainConfigIFace &table, int ref, const QVariant &value)
{
    const MainConfigObject &record = table.object(ref);
    QStringList texts;
    if (!parametervalues::isCollection(record))
        return texts;
    const QVariantList elements = parametervalues::occupiedElements(record, value);
    for (const QVariant &element : elements)
        texts.append(elementText(table, record, element));
    return texts;
}

} // namespace valuetext
