// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/qtcompat_p.h"

namespace {
QString radioSheet(const char *checkedImage, int blanks)
{
    const QString separator(blanks, QLatin1Char(' '));
    return QStringLiteral("QRadioButton::indicator:unchecked {image: "
                          "url(:/images/radiobutton_unselected.png);}") +
           separator +
           QStringLiteral("QRadioButton::indicator:checked {image: url(:/images/%1.png);}")
               .arg(QLatin1String(checkedImage)) +
           separator +
           QStringLiteral("QRadioButton::indicator:unchecked:hover {image: "
                          "url(:/images/radiobutton_unselected_hover.png);}") +
           separator +
           QStringLiteral("QRadioButton::indicator:checked:hover {image: "
                          "url(:/images/radiobutton_selected_hover.png);}");
}

// The two sheets' separators differ (24 and 22 blanks); hosts have always had it so.
const QString &radioSheet(bool modified)
{
    static const QString normal = radioSheet("radiobutton_selected_black", 24);
    static const QString changed = radioSheet("radiobutton_selected_yellow", 22);
    return modified ? changed : normal;
}
} // namespace

struct CfgRadioButton::Private
{
    BoundControl bound;
};

CfgRadioButton::CfgRadioButton(QWidget *parent)
    : QRadioButton(parent), d(std::make_unique<Private>())
{
    connect(this, SIGNAL(pressed()), this, SLOT(change()));
    drawBitmap(true, false);
}

CfgRadioButton::~CfgRadioButton() = default;

void CfgRadioButton::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                  QList<QWidget *> relatedWidgets)
{
    if (!d->bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(d->bound.record().toolTip);
    const MainConfigObject &object = d->bound.record();
    if (object.type == 4)
        setChecked(qtcompat::sameValue(QVariant(object.value.toUInt()), object.minimum));
    d->bound.registerIn(this, label);
}

void CfgRadioButton::change()
{
    if (!d->bound.iface)
        return;
    // Runs on press, so pressing a checked button writes its value again.
    const QVariant choice = d->bound.record().minimum;
    d->bound.iface->setValue(d->bound.reference, choice);
    updateControl(0);
}

void CfgRadioButton::setSelected(int value)
{
    if (d->bound.iface && d->bound.record().type == 4)
        setChecked(qtcompat::sameValue(QVariant(value), d->bound.record().minimum));
    updateControl(0);
}

void CfgRadioButton::updateControl(int hardwareId)
{
    if (!d->bound.refreshVisibility(this, hardwareId))
        return;
    drawBitmap(isEnabled(), d->bound.iface->isModified(d->bound.reference));
}

void CfgRadioButton::drawBitmap(bool enabled, bool modified)
{
    Q_UNUSED(enabled) // a disabled button looks like an enabled one; deliberate
    applyStyleSheet(this, radioSheet(modified));
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgRadioButton)
