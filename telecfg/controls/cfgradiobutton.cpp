// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/imagecheck_p.h"
#include "telecfg/qtcompat_p.h"

namespace {
const BoundKind boundKind = BoundKind::of<CfgRadioButton>("telecfg/controls/cfgradiobutton.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

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
    explicit Private(CfgRadioButton *self) : bound(self, boundKind) {}
    BoundControl bound;

    // Checked when `value` is this button's choice; only a Choice parameter sets the state.
    void select(CfgRadioButton *button, const QVariant &value) const
    {
        const MainConfigObject &object = bound.record();
        if (ParameterTraits::of(object.type).choice)
            button->setChecked(qtcompat::sameValue(value, object.minimum));
    }
};

CfgRadioButton::CfgRadioButton(QWidget *parent)
    : QRadioButton(parent), d(std::make_unique<Private>(this))
{
    checkImagesWhenShown(this);
    connect(this, SIGNAL(pressed()), this, SLOT(change()));
    drawBitmap(true, false);
}

CfgRadioButton::~CfgRadioButton() = default;

void CfgRadioButton::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                  QList<QWidget *> relatedWidgets)
{
    d->bound.bind(iface, ref, label, relatedWidgets,
                  [this] { d->select(this, QVariant(d->bound.record().value.toUInt())); });
}

void CfgRadioButton::updateControl(int hardwareId)
{
    d->bound.update(hardwareId, [this] {
        const bool modified = d->bound.iface->isModified(d->bound.reference);
        drawBitmap(isEnabled(), modified);
        // Stored, this choice was or was not the one taken.
        const quint32 choice = d->bound.record().minimum.toUInt();
        d->bound.presentChecked(
            modified, [choice](const QVariant &stored) { return stored.toUInt() == choice; });
    });
}

void CfgRadioButton::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgRadioButton::setError(bool error)
{
    d->bound.error = error;
}

bool CfgRadioButton::isError()
{
    return d->bound.error;
}

void CfgRadioButton::setSelected(int value)
{
    if (d->bound.iface)
        d->select(this, QVariant(value));
    updateControl(0);
}

void CfgRadioButton::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgRadioButton::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgRadioButton::change()
{
    // Runs on press, so pressing a checked button writes its value again.
    if (d->bound.iface)
        d->bound.write(d->bound.record().minimum);
}

void CfgRadioButton::drawBitmap(bool enabled, bool modified)
{
    Q_UNUSED(enabled) // a disabled button looks like an enabled one; deliberate
    applyStyleSheet(this, radioSheet(modified));
}
