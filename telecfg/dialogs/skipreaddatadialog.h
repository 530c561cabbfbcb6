// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>

namespace Ui {
class SkipReadDataDialog;
}

// Lets the user choose the data groups a read leaves out. The boxes start from the flags
// at every exec; the flags take the boxes' values only when the user confirms.
class TELECFG_EXPORT SkipReadDataDialog : public QDialog
{
    Q_OBJECT

public:
    SkipReadDataDialog(QWidget *parent, bool skipBt, bool skipFuel, bool skipCan, bool skipConf,
                       bool skipDallas);
    ~SkipReadDataDialog() override;

    int exec() override;

    bool getSkipBt() const { return skipBt; }
    bool getSkipFuel() const { return skipFuel; }
    bool getSkipCan() const { return skipCan; }
    bool getSkipConf() const { return skipConf; }
    bool getSkipDallas() const { return skipDallas; }

private slots:
    void on_buttonBox_accepted();
    void on_buttonBox_rejected();

private:
    bool skipBt;
    bool skipFuel;
    bool skipCan;
    bool skipConf;
    bool skipDallas;
    Ui::SkipReadDataDialog *ui;
};
