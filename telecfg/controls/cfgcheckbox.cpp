// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/boundcontrol.h"

namespace {
QString checkBoxSheet(const char *colour, const char *suffix, const QString &separator)
{
    const QString unchecked = QStringLiteral("QCheckBox::indicator:unchecked {image: "
                                             "url(:/images/checkbox_%1_unchecked%2.png);}");
    const QString checked = QStringLiteral("QCheckBox::indicator:checked {image: "
                                           "url(:/images/checkbox_%1_checked%2.png);}");
    return unchecked.arg(QLatin1String(colour), QLatin1String(suffix)) + separator +
           checked.arg(QLatin1String(colour), QLatin1String(suffix)) + separator +
           QStringLiteral("QCheckBox::indicator:unchecked:hover {image: "
                          "url(:/images/checkbox_unchecked_hover.png);}") +
           separator +
           QStringLiteral("QCheckBox::indicator:checked:hover {image: "
                          "url(:/images/checkbox_checked_hover.png);}");
}

// Indexed by enabled * 2 + modified. The last sheet's separators are one tab shorter;
// hosts have always had it so.
const QString &checkBoxSheet(bool enabled, bool modified)
{
    static const QString sixTabs = QStringLiteral("\t\t\t\t\t\t  ");
    static const QString fiveTabs = QStringLiteral("\t\t\t\t\t  ");
    static const QString sheets[4] = {
        checkBoxSheet("grey", "_disabled", sixTabs),
        checkBoxSheet("yellow", "_disabled", fiveTabs),
        checkBoxSheet("grey", "", sixTabs),
        checkBoxSheet("yellow", "", sixTabs),
    };
    return sheets[int(enabled) * 2 + int(modified)];
}
} // namespace

struct CfgCheckBox::Private
{
    BoundControl bound;
};

CfgCheckBox::CfgCheckBox(QWidget *parent) : QCheckBox(parent), d(std::make_unique<Private>())
{
    connect(this, SIGNAL(stateChanged(int)), this, SLOT(changed(int)));
    drawBitmap(true, false);
}

CfgCheckBox::~CfgCheckBox() = default;

void CfgCheckBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    if (!d->bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(d->bound.record().toolTip);
    const MainConfigObject &object = d->bound.record();
    const bool on = object.type == 22 ? object.value.toUInt() != 0 : object.value.toBool();
    setCheckState(on ? Qt::Checked : Qt::Unchecked);
    d->bound.registerIn(this, label);
}

void CfgCheckBox::updateControl(int hardwareId)
{
    if (!d->bound.refreshVisibility(this, hardwareId))
        return;
    drawBitmap(isEnabled(), d->bound.iface->isModified(d->bound.reference));
}

int CfgCheckBox::getReference()
{
    return d->bound.reference;
}

void CfgCheckBox::changed(int state)
{
    if (d->bound.reference == 0)
        return;
    const MainConfigObject &object = d->bound.record();
    // A partially checked box counts as checked only when the record asks for it.
    const bool on = object.partialIsChecked ? state != Qt::Unchecked : state == Qt::Checked;
    const QVariant value = object.type == 22 ? QVariant(int(on)) : QVariant(on);
    d->bound.iface->setValue(d->bound.reference, value);
    updateControl(0);
}

void CfgCheckBox::drawBitmap(bool enabled, bool modified)
{
    applyStyleSheet(this, checkBoxSheet(enabled, modified));
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgCheckBox)
