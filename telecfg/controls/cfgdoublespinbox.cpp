// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/qtcompat_p.h"

#include <QLocale>
#include <cmath>

namespace {
const BoundKind boundKind = BoundKind::of<CfgDoubleSpinBox>("telecfg/controls/cfgdoublespinbox.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

const BackgroundSheets &sheets()
{
    static const BackgroundSheets sheets("QDoubleSpinBox");
    return sheets;
}

double systemDouble(const QString &text)
{
    return QLocale::system().toDouble(text);
}

double wholeDouble(const QVariant &value)
{
    return double(wholeNumber(value, true));
}

// Only the value is adapted to the locale's separator; a bound written with the other one
// parses as 0. Deliberate.
double localeDouble(const QVariant &value)
{
    return systemDouble(value.toString());
}
double separatorAdaptedDouble(const QVariant &value)
{
    QString text = value.toString();
    if (systemLocaleUsesPoint())
        text.replace(QLatin1Char(','), QLatin1Char('.'));
    else
        text.replace(QLatin1Char('.'), QLatin1Char(','));
    return systemDouble(text);
}
} // namespace

struct CfgDoubleSpinBox::Private
{
    explicit Private(CfgDoubleSpinBox *self) : bound(self, boundKind) {}
    BoundControl bound;
};

CfgDoubleSpinBox::CfgDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent), d(std::make_unique<Private>(this))
{
    connect(this, TELECFG_SPINBOX_TEXT_SIGNAL, this, SLOT(updateValue(QString)));
}

CfgDoubleSpinBox::~CfgDoubleSpinBox() = default;

void CfgDoubleSpinBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                    QList<QWidget *> relatedWidgets)
{
    d->bound.bind(iface, ref, label, relatedWidgets, [&] {
        setSingleStep(double(quint32(d->bound.record().step)));
        const QVariant value = iface->value(ref);
        if (ParameterTraits::of(d->bound.record().type).signedNumber)
            loadRange(this, d->bound, value, wholeDouble, wholeDouble);
        else
            loadRange(this, d->bound, value, localeDouble, separatorAdaptedDouble);
    });
}

void CfgDoubleSpinBox::updateControl(int hardwareId)
{
    // The step rule is not repeated here: a refused edit's red lasts until this refresh.
    d->bound.update(hardwareId, [this] {
        d->bound.paintState(sheets(), d->bound.iface->isValid(d->bound.reference));
    });
}

void CfgDoubleSpinBox::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgDoubleSpinBox::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgDoubleSpinBox::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgDoubleSpinBox::setError(bool error)
{
    d->bound.error = error;
}

bool CfgDoubleSpinBox::isError()
{
    return d->bound.error;
}

void CfgDoubleSpinBox::updateValue(QString val)
{
    if (!d->bound.iface)
        return;
    // Single precision is part of the rule: within a float's reach a near multiple passes.
    float whole = 0;
    const float fraction = std::modf(float(systemDouble(val) / singleStep()), &whole);
    if (fraction != 0.0f || std::isnan(fraction)) {
        d->bound.paintRefused(
            sheets(), statecue::notAMultipleOf(QLocale::system().toString(singleStep(), 'g', 15)));
        return;
    }
    d->bound.write(QVariant(systemDouble(val)));
}
