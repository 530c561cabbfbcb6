// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/qtcompat_p.h"

#include <QLocale>

namespace {
const QString &redSheet()
{
    static const QString sheet = QStringLiteral("QLineEdit{background: red;}");
    return sheet;
}
const QString &yellowSheet()
{
    static const QString sheet = QStringLiteral("QLineEdit{background: yellow;}");
    return sheet;
}
const QString &whiteSheet()
{
    static const QString sheet = QStringLiteral("QLineEdit{background: white;}");
    return sheet;
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ');
}

QString validatorPattern(int type, bool pointLocale)
{
    switch (type) {
    case 4:
    case 7:
    case 21:
    case 28:
        return QStringLiteral(R"(-?\d+)");
    case 1:
    case 2:
    case 6:
    case 11:
        return QStringLiteral(R"(\d+)");
    case 3:
    case 15:
    case 18:
        return pointLocale ? QStringLiteral(R"(\d+(\.\d{1,5}){0,1})")
                           : QStringLiteral(R"(\d+(,\d{1,5}){0,1})");
    case 30:
        return pointLocale ? QStringLiteral(R"(-?\d+(\.\d{1,5}){0,1})")
                           : QStringLiteral(R"(-?\d+(,\d{1,5}){0,1})");
    case 10:
    case 19: {
        const QString part = QStringLiteral("(?:[0-1]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])");
        const QString dot = QStringLiteral(R"(\.)");
        return QStringLiteral("^") + part + dot + part + dot + part + dot + part +
               QStringLiteral("$");
    }
    case 12:
        return QStringLiteral(R"(^([0-9\+][0-9\-]){0,14}$)");
    // The odd escapes of the next two are what hosts have always accepted; deliberate.
    case 16:
        return QStringLiteral(R"([0-9\+\a-z\A-Z\ ]{1,})");
    case 17:
        return QStringLiteral(R"([0-9\+\a-z\A-Z\ \-\?\@\#\%\^\*\(\)\=\-\_\<\>\,\.\/\~\`\']{1,})");
    default:
        return QString();
    }
}
} // namespace

struct CfgLineEdit::Private
{
    BoundControl bound;
};

CfgLineEdit::CfgLineEdit(QWidget *parent) : QLineEdit(parent), d(std::make_unique<Private>())
{
    connect(this, SIGNAL(textChanged(const QString &)), this, SLOT(updateText(const QString &)));
}

CfgLineEdit::~CfgLineEdit() = default;

void CfgLineEdit::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    if (!d->bound.bind(iface, ref, relatedWidgets))
        return;
    setToolTip(d->bound.record().toolTip);
    // Before the validator: the host's value is shown even when it would not pass it.
    QLineEdit::setText(iface->value(ref).toString());
    installValidator(d->bound.record().type);
    d->bound.registerIn(this, label);
    updateControl(0);
}

void CfgLineEdit::installValidator(int type)
{
    const QString pattern = validatorPattern(type, systemLocaleUsesPoint());
    if (pattern.isEmpty())
        return;
    // Parented to the control; a later binding leaves this one among its children.
    setValidator(qtcompat::regExpValidator(pattern, this));
}

void CfgLineEdit::updateText(const QString &text)
{
    if (d->bound.reference == 4 && text.isEmpty()) {
        // No refresh here: the colour stays as it was. Deliberate.
        if (d->bound.iface)
            d->bound.iface->setValue(d->bound.reference, QVariant(0xFFFFFFFFu));
        return;
    }
    if (!text.isEmpty() && (isBlank(text.front()) || isBlank(text.back()))) {
        applyStyleSheet(this, redSheet());
        return;
    }
    if (d->bound.error) {
        applyStyleSheet(this, redSheet());
        return;
    }
    if (d->bound.iface)
        d->bound.iface->setValue(d->bound.reference, QVariant(text));
    updateControl(0);
}

void CfgLineEdit::updateControl(int hardwareId)
{
    if (!d->bound.iface) {
        applyStyleSheet(this, d->bound.error ? redSheet() : whiteSheet());
        return;
    }
    d->bound.refreshVisibility(this, hardwareId);
    MainConfigIFace *iface = d->bound.iface;
    if (!iface->isValid(d->bound.reference) || d->bound.error)
        applyStyleSheet(this, redSheet());
    else if (iface->isModified(d->bound.reference))
        applyStyleSheet(this, yellowSheet());
    else
        applyStyleSheet(this, whiteSheet());
}

void CfgLineEdit::displayText(QString text)
{
    disconnect(this, SIGNAL(textChanged(const QString &)), this, SLOT(updateText(const QString &)));
    QLineEdit::setText(text);
    connect(this, SIGNAL(textChanged(const QString &)), this, SLOT(updateText(const QString &)));
}

void CfgLineEdit::setText(const QString &text)
{
    QLineEdit::setText(text);
}

TELECFG_BOUND_CONTROL_OPERATIONS(CfgLineEdit)
