// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/imagecheck_p.h"

namespace {
const BoundKind boundKind = BoundKind::of<CfgCheckBox>("telecfg/controls/cfgcheckbox.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

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
    explicit Private(CfgCheckBox *self) : bound(self, boundKind) {}
    BoundControl bound;
};

CfgCheckBox::CfgCheckBox(QWidget *parent) : QCheckBox(parent), d(std::make_unique<Private>(this))
{
    checkImagesWhenShown(this);
    connect(this, SIGNAL(stateChanged(int)), this, SLOT(changed(int)));
    drawBitmap(true, false);
}

CfgCheckBox::~CfgCheckBox() = default;

void CfgCheckBox::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    // The new state's echo writes the value back to the host; hosts have always had it so.
    d->bound.bind(iface, ref, label, relatedWidgets, [this] {
        const MainConfigObject &object = d->bound.record();
        const bool on = ParameterTraits::of(object.type).intFlag ? object.value.toUInt() != 0
                                                                 : object.value.toBool();
        setCheckState(on ? Qt::Checked : Qt::Unchecked);
    });
}

void CfgCheckBox::updateControl(int hardwareId)
{
    d->bound.update(hardwareId, [this] {
        const bool modified = d->bound.iface->isModified(d->bound.reference);
        drawBitmap(isEnabled(), modified);
        d->bound.presentChecked(modified, [](const QVariant &stored) { return stored.toBool(); });
    });
}

void CfgCheckBox::setError(bool error)
{
    d->bound.error = error;
}

bool CfgCheckBox::isError()
{
    return d->bound.error;
}

int CfgCheckBox::getReference()
{
    return d->bound.reference;
}

void CfgCheckBox::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgCheckBox::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgCheckBox::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgCheckBox::changed(int state)
{
    // Deliberate: the check box knows itself unbound by its parameter number 0.
    if (d->bound.reference == 0)
        return;
    const MainConfigObject &object = d->bound.record();
    // A partially checked box counts as checked only when the record asks for it.
    const bool on = object.partialIsChecked ? state != Qt::Unchecked : state == Qt::Checked;
    d->bound.write(ParameterTraits::of(object.type).intFlag ? QVariant(int(on)) : QVariant(on));
}

void CfgCheckBox::drawBitmap(bool enabled, bool modified)
{
    applyStyleSheet(this, checkBoxSheet(enabled, modified));
}
