// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/qtcompat_p.h"

#include <QLocale>

namespace {
const BoundKind boundKind = BoundKind::of<CfgLineEdit>("telecfg/controls/cfglineedit.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

const BackgroundSheets &sheets()
{
    static const BackgroundSheets sheets("QLineEdit");
    return sheets;
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ');
}

QString validatorPattern(ParameterTraits::Validator validator, bool pointLocale)
{
    using V = ParameterTraits::Validator;
    switch (validator) {
    case V::SignedWhole:
        return QStringLiteral(R"(-?\d+)");
    case V::UnsignedWhole:
        return QStringLiteral(R"(\d+)");
    case V::UnsignedDecimal:
        return pointLocale ? QStringLiteral(R"(\d+(\.\d{1,5}){0,1})")
                           : QStringLiteral(R"(\d+(,\d{1,5}){0,1})");
    case V::SignedDecimal:
        return pointLocale ? QStringLiteral(R"(-?\d+(\.\d{1,5}){0,1})")
                           : QStringLiteral(R"(-?\d+(,\d{1,5}){0,1})");
    case V::Address: {
        const QString part = QStringLiteral("(?:[0-1]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])");
        const QString dot = QStringLiteral(R"(\.)");
        return QStringLiteral("^") + part + dot + part + dot + part + dot + part +
               QStringLiteral("$");
    }
    case V::PhoneNumber:
        return QStringLiteral(R"(^([0-9\+][0-9\-]){0,14}$)");
    // The odd escapes of the next two are what hosts have always accepted; deliberate.
    case V::PlainText:
        return QStringLiteral(R"([0-9\+\a-z\A-Z\ ]{1,})");
    case V::PunctuatedText:
        return QStringLiteral(R"([0-9\+\a-z\A-Z\ \-\?\@\#\%\^\*\(\)\=\-\_\<\>\,\.\/\~\`\']{1,})");
    case V::None:
        break;
    }
    return QString();
}
} // namespace

struct CfgLineEdit::Private
{
    explicit Private(CfgLineEdit *self) : bound(self, boundKind) {}
    BoundControl bound;
};

CfgLineEdit::CfgLineEdit(QWidget *parent) : QLineEdit(parent), d(std::make_unique<Private>(this))
{
    connect(this, SIGNAL(textChanged(const QString &)), this, SLOT(updateText(const QString &)));
}

CfgLineEdit::~CfgLineEdit() = default;

void CfgLineEdit::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                               QList<QWidget *> relatedWidgets)
{
    // Before the validator: the host's value is shown even when it would not pass it. The
    // text's echo writes it back to the host; hosts have always had it so.
    const bool bound = d->bound.bind(iface, ref, label, relatedWidgets, [&] {
        QLineEdit::setText(iface->value(ref).toString());
        installValidator(d->bound.record().type);
    });
    if (bound)
        updateControl(0);
}

void CfgLineEdit::updateControl(int hardwareId)
{
    const auto paint = [this] {
        d->bound.paintState(sheets(),
                            d->bound.iface->isValid(d->bound.reference) && !d->bound.error,
                            d->bound.error ? statecue::refusedByDevice() : QString());
    };
    d->bound.update(hardwareId, paint, [this] {
        applyStyleSheet(this,
                        sheets()[d->bound.error ? BackgroundSheets::Red : BackgroundSheets::White]);
    });
}

void CfgLineEdit::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgLineEdit::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgLineEdit::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgLineEdit::setError(bool error)
{
    d->bound.error = error;
}

bool CfgLineEdit::isError()
{
    return d->bound.error;
}

void CfgLineEdit::displayText(QString text)
{
    const BoundControl::Loading loading(d->bound);
    QLineEdit::setText(text);
}

void CfgLineEdit::setText(const QString &text)
{
    QLineEdit::setText(text);
}

void CfgLineEdit::updateText(const QString &text)
{
    // A text shown by displayText is no edit: nothing is written and the colour stays.
    if (d->bound.loading())
        return;
    if (d->bound.reference == 4 && text.isEmpty()) {
        // No refresh here: the colour stays as it was. Deliberate.
        d->bound.write(QVariant(0xFFFFFFFFu), BoundControl::Then::Stop);
        return;
    }
    if (d->bound.error || (!text.isEmpty() && (isBlank(text.front()) || isBlank(text.back())))) {
        d->bound.paintRefused(sheets(), d->bound.error ? statecue::refusedByDevice()
                                                       : statecue::blankAtEnds());
        return;
    }
    if (!d->bound.write(QVariant(text)))
        updateControl(0); // unbound: paints by the error flag alone
}

void CfgLineEdit::installValidator(int type)
{
    const QString pattern =
        validatorPattern(ParameterTraits::of(type).validator, systemLocaleUsesPoint());
    if (pattern.isEmpty())
        return;
    // Parented to the control; a later binding leaves this one among its children.
    setValidator(qtcompat::regExpValidator(pattern, this));
}
