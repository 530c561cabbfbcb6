// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/dialogs/licence_p.h"

#include <QLocale>
#include <QWidget>

bool BoundControl::bind(MainConfigIFace *boundIface, int ref, const QList<QWidget *> &related)
{
    iface = boundIface;
    reference = boundIface ? ref : 0;
    relatedWidgets.clear();
    for (QWidget *widget : related)
        if (widget)
            relatedWidgets.append(widget);
    error = false;
    return iface != nullptr;
}

void BoundControl::registerIn(QWidget *control, QWidget *label) const
{
    MainConfigObject &object = record();
    object.control = control;
    object.label = label;
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

bool BoundControl::refreshVisibility(QWidget *self, int id)
{
    if (!iface)
        return false;
    const bool hide = isHiddenNow(id);
    self->setVisible(!hide);
    for (const QPointer<QWidget> &widget : qAsConst(relatedWidgets))
        if (widget)
            widget->setVisible(!hide);
    return true;
}

bool BoundControl::setHidden(QWidget *self, bool hidden)
{
    self->setHidden(hidden);
    if (!iface)
        return false;
    record().hidden = hidden;
    return true;
}

void BoundControl::setEnabled(QWidget *self, bool enable) const
{
    self->setEnabled(enableState ? enable : false);
}

void BoundControl::updateEnableState(QWidget *self, bool state)
{
    enableState = state;
    self->setEnabled(enableState ? self->isEnabled() : false);
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
