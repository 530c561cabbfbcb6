// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "ui_skipreaddatadialog.h"

struct SkipReadDataDialog::Private
{
    bool skipBt = false;
    bool skipFuel = false;
    bool skipCan = false;
    bool skipConf = false;
    bool skipDallas = false;
    Ui::SkipReadDataDialog ui;
};

SkipReadDataDialog::SkipReadDataDialog(QWidget *parent, bool skipBt, bool skipFuel, bool skipCan,
                                       bool skipConf, bool skipDallas)
    : QDialog(parent), d(std::make_unique<Private>())
{
    d->skipBt = skipBt;
    d->skipFuel = skipFuel;
    d->skipCan = skipCan;
    d->skipConf = skipConf;
    d->skipDallas = skipDallas;
    Ui::SkipReadDataDialog *ui = &d->ui;
    ui->setupUi(this);
    setWindowTitle(tr("Odczyt - pomijane dane"));
}

SkipReadDataDialog::~SkipReadDataDialog() = default;

int SkipReadDataDialog::exec()
{
    d->ui.cbBt->setChecked(d->skipBt);
    d->ui.cbFuel->setChecked(d->skipFuel);
    d->ui.cbCan->setChecked(d->skipCan);
    d->ui.cbConf->setChecked(d->skipConf);
    d->ui.cbDallas->setChecked(d->skipDallas);

    const int result = QDialog::exec();
    if (result == QDialog::Accepted) {
        d->skipBt = d->ui.cbBt->isChecked();
        d->skipFuel = d->ui.cbFuel->isChecked();
        d->skipCan = d->ui.cbCan->isChecked();
        d->skipConf = d->ui.cbConf->isChecked();
        d->skipDallas = d->ui.cbDallas->isChecked();
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

bool SkipReadDataDialog::getSkipBt() const
{
    return d->skipBt;
}

bool SkipReadDataDialog::getSkipFuel() const
{
    return d->skipFuel;
}

bool SkipReadDataDialog::getSkipCan() const
{
    return d->skipCan;
}

bool SkipReadDataDialog::getSkipConf() const
{
    return d->skipConf;
}

bool SkipReadDataDialog::getSkipDallas() const
{
    return d->skipDallas;
}
