// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/qtcompat_p.h"
#include "ui_dualinputdlg.h"

#include <QLocale>

namespace {
const char integerPattern[] = "^[0-9]\\d{0,5}$";
const char pointPattern[] = "-?\\d+(\\.\\d{1,%1}){0,1}";
const char commaPattern[] = "-?\\d+(,\\d{1,%1}){0,1}";

QString firstFieldPattern(int decimals)
{
    if (decimals <= 0)
        return QLatin1String(integerPattern);
    bool readsPoint = false;
    QLocale::system().toDouble(QStringLiteral("1.1"), &readsPoint);
    return QString::fromLatin1(readsPoint ? pointPattern : commaPattern).arg(decimals);
}
} // namespace

DualInputDlg::DualInputDlg(int decimals, QWidget *parent)
    : QDialog(parent), ui(new Ui::DualInputDlg)
{
    ui->setupUi(this);
    ui->lineEdit->setValidator(qtcompat::regExpValidator(firstFieldPattern(decimals), this));
    ui->lineEdit_2->setValidator(
        qtcompat::regExpValidator(QLatin1String(integerPattern), this));
}

DualInputDlg::~DualInputDlg()
{
    delete ui;
}

void DualInputDlg::setLabels(QString first, QString second)
{
    ui->label->setText(first);
    ui->label_2->setText(second);
}

void DualInputDlg::SetValue1(QString text)
{
    ui->lineEdit->setText(text);
    // Deliberately the second field, not the one just set: the user goes on from there.
    ui->lineEdit_2->setFocus(Qt::OtherFocusReason);
}

QString DualInputDlg::getValue1()
{
    return ui->lineEdit->text();
}

QString DualInputDlg::getValue2()
{
    return ui->lineEdit_2->text();
}
