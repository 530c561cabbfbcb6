// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgspinbox.h"

namespace {
const QString &spinSheet(int state)
{
    static const QString sheets[3] = {
        QStringLiteral("QSpinBox{background: red;}"),
        QStringLiteral("QSpinBox{background: yellow;}"),
        QStringLiteral("QSpinBox{background: white;}"),
    };
    return sheets[state];
}
enum { Red, Yellow, White };
} // namespace

CfgSpinBox::CfgSpinBox(QWidget *parent) : QSpinBox(parent)
{
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(updateValue(int)));
}

CfgSpinBox::~CfgSpinBox() = default;

void CfgSpinBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                              QList<QWidget *> relatedWidgets)
{
    if (!bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(bound.record().toolTip);
    setSingleStep(bound.record().step);
    // The value is read before the bounds are set: each bound's echo reaches the host's
    // setValue and would otherwise replace the value about to be shown.
    const QVariant value = iface->value(ref);
    // Unsigned numbers above 0x7fffffff arrive negative in the widget; deliberate.
    const bool isSigned = bound.record().type == 21;
    auto read = [isSigned](const QVariant &v) { return isSigned ? v.toInt() : int(v.toUInt()); };
    setMinimum(read(bound.record().minimum));
    setMaximum(read(bound.record().maximum));
    setValue(read(value));
    bound.registerIn(this, label);
}

void CfgSpinBox::updateValue(int val)
{
    if (!bound.iface)
        return;
    bound.iface->setValue(bound.reference, QVariant(val));
    updateControl(0);
}

void CfgSpinBox::updateControl(int hardwareId)
{
    if (!bound.refreshVisibility(this, hardwareId))
        return;
    MainConfigIFace *iface = bound.iface;
    int state = White;
    if (!iface->isValid(bound.reference)) {
        state = Red;
    } else {
        // The multiple rule colours, it does not refuse; negative values are taken by their
        // unsigned reading. A step of 0 leaves the rule out instead of dividing by zero.
        const quint32 step = quint32(bound.record().step);
        if (step != 0 && iface->value(bound.reference).toUInt() % step != 0)
            state = Red;
        else if (iface->isModified(bound.reference))
            state = Yellow;
    }
    applyStyleSheet(this, spinSheet(state));
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgSpinBox)
