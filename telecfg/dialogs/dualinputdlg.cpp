// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/qtcompat_p.h"
#include "ui_dualinputdlg.h"

#include <QLocale>

namespace {
const char integerPattern[] = R"(^[0-9]\d{0,5}$)";
const char pointPattern[] = R"(-?\d+(\.\d{1,%1}){0,1})";
const char commaPattern[] = R"(-?\d+(,\d{1,%1}){0,1})";

QString firstFieldPattern(int decimals)
{
    if (decimals <= 0)
        return QLatin1String(integerPattern);
    bool readsPoint = false;
    QLocale::system().toDouble(QStringLiteral("1.1"), &readsPoint);
    return QString::fromLatin1(readsPoint ? pointPattern : commaPattern).arg(decimals);
}
} // namespace

struct DualInputDlg::Private
{
    Ui::DualInputDlg ui;
};

DualInputDlg::DualInputDlg(int decimals, QWidget *parent)
    : QDialog(parent), d(std::make_unique<Private>())
{
    Ui::DualInputDlg *ui = &d->ui;
    ui->setupUi(this);
    ui->lineEdit->setValidator(qtcompat::regExpValidator(firstFieldPattern(decimals), this));
    ui->lineEdit_2->setValidator(qtcompat::regExpValidator(QLatin1String(integerPattern), this));
}

DualInputDlg::~DualInputDlg() = default;

void DualInputDlg::setLabels(QString first, QString second)
{
    d->ui.label->setText(first);
    d->ui.label_2->setText(second);
}

void DualInputDlg::SetValue1(QString text)
{
    d->ui.lineEdit->setText(text);
    // Deliberately the second field, not the one just set: the user goes on from there.
    d->ui.lineEdit_2->setFocus(Qt::OtherFocusReason);
}

QString DualInputDlg::getValue1()
{
    return d->ui.lineEdit->text();
}

QString DualInputDlg::getValue2()
{
    return d->ui.lineEdit_2->text();
}
