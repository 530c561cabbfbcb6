// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "ui_skipreaddatadialog.h"

SkipReadDataDialog::SkipReadDataDialog(QWidget *parent, bool skipBt, bool skipFuel, bool skipCan,
                                       bool skipConf, bool skipDallas)
    : QDialog(parent), skipBt(skipBt), skipFuel(skipFuel), skipCan(skipCan), skipConf(skipConf),
      skipDallas(skipDallas), ui(new Ui::SkipReadDataDialog)
{
    ui->setupUi(this);
    setWindowTitle(tr("Odczyt - pomijane dane"));
}

SkipReadDataDialog::~SkipReadDataDialog()
{
    delete ui;
}

int SkipReadDataDialog::exec()
{
    ui->cbBt->setChecked(skipBt);
    ui->cbFuel->setChecked(skipFuel);
    ui->cbCan->setChecked(skipCan);
    ui->cbConf->setChecked(skipConf);
    ui->cbDallas->setChecked(skipDallas);

    const int result = QDialog::exec();
    if (result == QDialog::Accepted) {
        skipBt = ui->cbBt->isChecked();
        skipFuel = ui->cbFuel->isChecked();
        skipCan = ui->cbCan->isChecked();
        skipConf = ui->cbConf->isChecked();
        skipDallas = ui->cbDallas->isChecked();
    }
    return result;
}

void SkipReadDataDialog::on_buttonBox_accepted()
{
    QDialog::accept();
}

void SkipReadDataDialog::on_buttonBox_rejected()
{
    QDialog::reject();
}
