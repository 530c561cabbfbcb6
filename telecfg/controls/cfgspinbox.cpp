// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/config/parametervalues_p.h"
#include "telecfg/controls/boundcontrol.h"

namespace {
const BoundKind boundKind = BoundKind::of<CfgSpinBox>("telecfg/controls/cfgspinbox.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static
} // namespace

struct CfgSpinBox::Private
{
    explicit Private(CfgSpinBox *self) : bound(self, boundKind) {}
    BoundControl bound;
};

CfgSpinBox::CfgSpinBox(QWidget *parent) : QSpinBox(parent), d(std::make_unique<Private>(this))
{
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(updateValue(int)));
}

CfgSpinBox::~CfgSpinBox() = default;

void CfgSpinBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                              QList<QWidget *> relatedWidgets)
{
    d->bound.bind(iface, ref, label, relatedWidgets, [&] {
        setSingleStep(d->bound.record().step);
        const QVariant value = iface->value(ref);
        const bool isSigned = ParameterTraits::of(d->bound.record().type).signedNumber;
        const auto read = [isSigned](const QVariant &v) { return wholeNumber(v, isSigned); };
        loadRange(this, d->bound, value, read, read);
    });
}

void CfgSpinBox::updateControl(int hardwareId)
{
    static const BackgroundSheets sheets("QSpinBox");
    d->bound.update(hardwareId, [this] {
        MainConfigIFace *iface = d->bound.iface;
        const int ref = d->bound.reference;
        // The multiple rule colours, it does not refuse.
        const bool multiple = parametervalues::multipleOfStep(d->bound.record(), iface->value(ref));
        d->bound.paintState(
            sheets, iface->isValid(ref) && multiple,
            multiple ? QString()
                     : statecue::notAMultipleOf(QString::number(quint32(d->bound.record().step))));
    });
}

void CfgSpinBox::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgSpinBox::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgSpinBox::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgSpinBox::setError(bool error)
{
    d->bound.error = error;
}

bool CfgSpinBox::isError()
{
    return d->bound.error;
}

void CfgSpinBox::updateValue(int val)
{
    d->bound.write(QVariant(val));
}
