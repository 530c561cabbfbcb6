// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/config/licence_p.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/statecolours.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QWidget>
#include <utility>

namespace {
struct Registry
{
    QHash<const QMetaObject *, const BoundKind *> byMetaObject;
    QList<const BoundKind *> kinds;
};
Registry &registry()
{
    static Registry kinds;
    return kinds;
}
} // namespace

void BoundKind::add(const BoundKind *kind)
{
    Registry &known = registry();
    if (known.byMetaObject.contains(kind->metaObject))
        return;
    known.byMetaObject.insert(kind->metaObject, kind);
    known.kinds.append(kind);
}

const BoundKind *BoundKind::find(const QMetaObject *metaObject)
{
    const Registry &known = registry();
    for (; metaObject; metaObject = metaObject->superClass())
        if (const BoundKind *kind = known.byMetaObject.value(metaObject))
            return kind;
    return nullptr;
}

const BoundKind *BoundKind::find(const QWidget *widget)
{
    return widget ? find(widget->metaObject()) : nullptr;
}

QList<const BoundKind *> BoundKind::all()
{
    return registry().kinds;
}

namespace {
// The standard set's names, and the dark set's colours beside them.
const char *const backgroundNames[2][3] = {{"red", "yellow", "white"},
                                           {"#8b1a1a", "#6b5500", "#2a2a2a"}};
} // namespace

BackgroundSheets::BackgroundSheets(const char *widgetClass)
{
    for (int set = 0; set < 2; ++set)
        for (int colour = Red; colour <= White; ++colour)
            sheets[set][colour] =
                QStringLiteral("%1{background: %2;}")
                    .arg(QLatin1String(widgetClass), QLatin1String(backgroundNames[set][colour]));
}

const QString &BackgroundSheets::operator[](Colour colour) const
{
    return sheets[int(stateColours())][colour];
}

QColor BackgroundSheets::background(Colour colour)
{
    return QColor(QLatin1String(backgroundNames[int(stateColours())][colour]));
}

bool BoundControl::bindOnly(MainConfigIFace *table, int ref, const QList<QWidget *> &related)
{
    iface = table;
    reference = table ? ref : 0;
    relatedWidgets.clear();
    for (QWidget *widget : related)
        if (widget)
            relatedWidgets.append(widget);
    error = false;
    return iface != nullptr;
}

void BoundControl::registerIn(QWidget *label, NullLabel nullLabel) const
{
    MainConfigObject &object = record();
    object.control = self;
    if (label || nullLabel == NullLabel::Record)
        object.label = label;
}

namespace {
QWidget *writer = nullptr;
quint64 writes = 0;
} // namespace

QWidget *BoundControl::writing()
{
    return writer;
}

quint64 BoundControl::writeSerial()
{
    return writes;
}

bool BoundControl::write(const QVariant &value, Then then)
{
    if (!iface || loading())
        return false;
    QWidget *const outer = std::exchange(writer, self);
    ++writes;
    iface->setValue(reference, value);
    writer = outer;
    if (then == Then::Refresh)
        refresh();
    return true;
}

void BoundControl::paintState(const BackgroundSheets &sheets, bool valid, const QString &why)
{
    using statecue::State;
    using Colour = BackgroundSheets::Colour;
    if (!valid) {
        applyStyleSheet(self, sheets[Colour::Red]);
        present(State::Invalid, why.isEmpty() ? invalidReason() : why,
                BackgroundSheets::background(Colour::Red));
    } else if (iface->isModified(reference)) {
        applyStyleSheet(self, sheets[Colour::Yellow]);
        present(State::Modified, storedText(), BackgroundSheets::background(Colour::Yellow));
    } else {
        applyStyleSheet(self, sheets[Colour::White]);
        present(State::Normal, QString(), BackgroundSheets::background(Colour::White));
    }
}

void BoundControl::paintRefused(const BackgroundSheets &sheets, const QString &why)
{
    applyStyleSheet(self, sheets[BackgroundSheets::Red]);
    present(statecue::State::Invalid, why, BackgroundSheets::background(BackgroundSheets::Red));
}

void BoundControl::present(statecue::State state, const QString &detail,
                           const QColor &textBackground)
{
    statecue::present(self, {state, detail, textBackground}, cue);
}

namespace {
QString numberText(const QVariant &number)
{
    return QLocale::system().toString(number.toDouble(), 'g', 15);
}
} // namespace

void BoundControl::presentCollection()
{
    using statecue::State;
    const State state = !iface->isValid(reference)     ? State::Invalid
                        : iface->isModified(reference) ? State::Modified
                                                       : State::Normal;
    statecue::present(self, {state, QString(), QColor(), false}, cue);
}

QString BoundControl::invalidReason() const
{
    const QVariant current = iface->value(reference);
    QVariant minimum = record().minimum;
    QVariant maximum = record().maximum;
    int maxLength = -1;
    QString pattern;
    if (auto *table = dynamic_cast<ParameterTable *>(iface)) {
        const ParameterTable::Rules rules = table->validityRules(reference);
        minimum = rules.minimum;
        maximum = rules.maximum;
        maxLength = rules.maxLength;
        pattern = rules.pattern;
    }
    bool numeric = false;
    const double number = current.toString().toDouble(&numeric);
    if (numeric && minimum.isValid() && maximum.isValid() &&
        (number < minimum.toDouble() || number > maximum.toDouble()))
        return statecue::outsideRange(numberText(minimum), numberText(maximum));
    const QString text = current.toString();
    if (maxLength >= 0 && text.size() > maxLength)
        return statecue::tooLong(maxLength);
    if (!pattern.isEmpty() &&
        !QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch())
        return statecue::doesNotMatchPattern();
    return QString();
}

QVariant BoundControl::storedValue() const
{
    if (auto *table = dynamic_cast<ParameterTable *>(iface))
        return table->storedValue(reference);
    return QVariant();
}

QString BoundControl::storedText() const
{
    const QVariant stored = storedValue();
    if (!stored.isValid())
        return QString();
    QString text = stored.toString();
    for (const auto &option : std::as_const(record().options))
        if (option.second == text)
            return option.first;
    return text;
}

HiddenReason hiddenReason(MainConfigIFace &iface, int ref, int hardwareId)
{
    const quint32 version = iface.object(2).value.toUInt();
    MainConfigObject &record = iface.object(ref);
    const quint32 minimum = getConfigMinVersion(record);
    const quint32 maximum = getConfigMaxVersion(record);
    if (version < minimum) {
        const bool ranged =
            record.minVersions.contains(record.versionKey) || record.minVersions.contains(0);
        return ranged ? HiddenReason::BelowVersionRange : HiddenReason::NoVersionRange;
    }
    if (maximum != 0 && version > maximum)
        return HiddenReason::AboveVersionRange;
    const QList<int> &ids = record.hardwareIds;
    if (!ids.isEmpty() && !ids.contains(hardwareId))
        return HiddenReason::HardwareNotListed;
    if (record.hidden)
        return HiddenReason::HiddenOnRequest;
    if (record.licenceGate > guiLicenseLevel())
        return HiddenReason::ClosedByLicence;
    return HiddenReason::Shown;
}

bool BoundControl::isHiddenNow(int id)
{
    if (id != 0)
        hardwareId = id;
    return hiddenReason(*iface, reference, hardwareId) != HiddenReason::Shown;
}

void BoundControl::applyVisibility(int id)
{
    const bool hide = isHiddenNow(id) && !self->property(itemEditorProperty).toBool();
    self->setVisible(!hide);
    for (const QPointer<QWidget> &widget : std::as_const(relatedWidgets))
        if (widget)
            widget->setVisible(!hide);
}

void BoundControl::setHidden(bool hidden)
{
    self->setHidden(hidden);
    if (!iface)
        return;
    record().hidden = hidden;
    refresh();
}

void BoundControl::setEnabled(bool enable)
{
    self->setEnabled(enableState ? enable : false);
    refresh();
}

void BoundControl::updateEnableState(bool state)
{
    enableState = state;
    self->setEnabled(enableState ? self->isEnabled() : false);
    refresh();
}

void applyStyleSheet(QWidget *widget, const QString &sheet)
{
    // The widget keeps a shared copy of the sheet it was given: the same text is found
    // without comparing it.
    const QString current = widget->styleSheet();
    if (current.constData() != sheet.constData() && current != sheet)
        widget->setStyleSheet(sheet);
}

bool systemLocaleUsesPoint()
{
    bool parsed = false;
    QLocale::system().toDouble(QStringLiteral("1.1"), &parsed);
    return parsed;
}

namespace {
StateColours chosenColours = StateColours::Standard;
} // namespace

void setStateColours(StateColours colours)
{
    chosenColours = colours;
}

StateColours stateColours()
{
    return chosenColours;
}
