// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/controls/boundcontrol.h"

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

struct CfgSpinBox::Private
{
    BoundControl bound;
};

CfgSpinBox::CfgSpinBox(QWidget *parent) : QSpinBox(parent), d(std::make_unique<Private>())
{
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(updateValue(int)));
}

CfgSpinBox::~CfgSpinBox() = default;

void CfgSpinBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                              QList<QWidget *> relatedWidgets)
{
    if (!d->bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(d->bound.record().toolTip);
    setSingleStep(d->bound.record().step);
    // The value is read before the bounds are set: each bound's echo reaches the host's
    // setValue and would otherwise replace the value about to be shown.
    const QVariant value = iface->value(ref);
    // Unsigned numbers above 0x7fffffff arrive negative in the widget; deliberate.
    const bool isSigned = d->bound.record().type == 21;
    auto read = [isSigned](const QVariant &v) { return isSigned ? v.toInt() : int(v.toUInt()); };
    setMinimum(read(d->bound.record().minimum));
    setMaximum(read(d->bound.record().maximum));
    setValue(read(value));
    d->bound.registerIn(this, label);
}

void CfgSpinBox::updateValue(int val)
{
    if (!d->bound.iface)
        return;
    d->bound.iface->setValue(d->bound.reference, QVariant(val));
    updateControl(0);
}

void CfgSpinBox::updateControl(int hardwareId)
{
    if (!d->bound.refreshVisibility(this, hardwareId))
        return;
    MainConfigIFace *iface = d->bound.iface;
    int state = White;
    if (!iface->isValid(d->bound.reference)) {
        state = Red;
    } else {
        // The multiple rule colours, it does not refuse; negative values are taken by their
        // unsigned reading. A step of 0 leaves the rule out instead of dividing by zero.
        const auto step = quint32(d->bound.record().step);
        if (step != 0 && iface->value(d->bound.reference).toUInt() % step != 0)
            state = Red;
        else if (iface->isModified(d->bound.reference))
            state = Yellow;
    }
    applyStyleSheet(this, spinSheet(state));
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgSpinBox)
