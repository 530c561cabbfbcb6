// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/dialogs/licence_p.h"

#include <QHash>
#include <QLocale>
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

BackgroundSheets::BackgroundSheets(const char *widgetClass)
{
    const char *colours[] = {"red", "yellow", "white"};
    for (int colour = Red; colour <= White; ++colour)
        sheets[colour] = QStringLiteral("%1{background: %2;}")
                             .arg(QLatin1String(widgetClass), QLatin1String(colours[colour]));
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

bool BoundControl::write(const QVariant &value, Then then)
{
    if (!iface || loading())
        return false;
    iface->setValue(reference, value);
    if (then == Then::Refresh)
        refresh();
    return true;
}

void BoundControl::paintState(const BackgroundSheets &sheets, bool valid) const
{
    if (!valid)
        applyStyleSheet(self, sheets[BackgroundSheets::Red]);
    else if (iface->isModified(reference))
        applyStyleSheet(self, sheets[BackgroundSheets::Yellow]);
    else
        applyStyleSheet(self, sheets[BackgroundSheets::White]);
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
    const bool hide = isHiddenNow(id);
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
