// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/qtcompat_p.h"

#include <QLocale>
#include <cmath>

namespace {
const QString &doubleSpinSheet(int state)
{
    static const QString sheets[3] = {
        QStringLiteral("QDoubleSpinBox{background: red;}"),
        QStringLiteral("QDoubleSpinBox{background: yellow;}"),
        QStringLiteral("QDoubleSpinBox{background: white;}"),
    };
    return sheets[state];
}
enum { Red, Yellow, White };

double systemDouble(const QString &text)
{
    return QLocale::system().toDouble(text);
}
} // namespace

struct CfgDoubleSpinBox::Private
{
    BoundControl bound;
};

CfgDoubleSpinBox::CfgDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent), d(std::make_unique<Private>())
{
    connect(this, TELECFG_SPINBOX_TEXT_SIGNAL, this, SLOT(updateValue(QString)));
}

CfgDoubleSpinBox::~CfgDoubleSpinBox() = default;

void CfgDoubleSpinBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                    QList<QWidget *> relatedWidgets)
{
    if (!d->bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(d->bound.record().toolTip);
    setSingleStep(double(quint32(d->bound.record().step)));
    // The value is read before the bounds are set: each bound's echo reaches the host's
    // setValue and would otherwise replace the value about to be shown.
    const QVariant value = iface->value(ref);
    if (d->bound.record().type == 21) {
        setMinimum(double(d->bound.record().minimum.toInt()));
        setMaximum(double(d->bound.record().maximum.toInt()));
        setValue(double(value.toInt()));
    } else {
        // Only the value is adapted to the locale's separator; a bound written with the
        // other one parses as 0. Deliberate.
        setMinimum(systemDouble(d->bound.record().minimum.toString()));
        setMaximum(systemDouble(d->bound.record().maximum.toString()));
        QString text = value.toString();
        if (systemLocaleUsesPoint())
            text.replace(QLatin1Char(','), QLatin1Char('.'));
        else
            text.replace(QLatin1Char('.'), QLatin1Char(','));
        setValue(systemDouble(text));
    }
    d->bound.registerIn(this, label);
}

void CfgDoubleSpinBox::updateValue(QString val)
{
    if (!d->bound.iface)
        return;
    // Single precision is part of the rule: within a float's reach a near multiple passes.
    float whole = 0;
    const float fraction = std::modf(float(systemDouble(val) / singleStep()), &whole);
    if (fraction != 0.0f || std::isnan(fraction)) {
        applyStyleSheet(this, doubleSpinSheet(Red));
        return;
    }
    d->bound.iface->setValue(d->bound.reference, QVariant(systemDouble(val)));
    updateControl(0);
}

void CfgDoubleSpinBox::updateControl(int hardwareId)
{
    if (!d->bound.refreshVisibility(this, hardwareId))
        return;
    // The step rule is not repeated here: a refused edit's red lasts until this refresh.
    MainConfigIFace *iface = d->bound.iface;
    int state = White;
    if (!iface->isValid(d->bound.reference))
        state = Red;
    else if (iface->isModified(d->bound.reference))
        state = Yellow;
    applyStyleSheet(this, doubleSpinSheet(state));
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgDoubleSpinBox)
