// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>

namespace Ui {
class DualInputDlg;
}

// Asks for two numbers. The first is an integer, or with `decimals` above 0 a signed
// decimal number with up to `decimals` digits after the system locale's separator; the
// second is always an integer of 1 to 6 digits with no sign.
class TELECFG_EXPORT DualInputDlg : public QDialog
{
    Q_OBJECT

public:
    explicit DualInputDlg(int decimals = 0, QWidget *parent = nullptr);
    ~DualInputDlg() override;

    void setLabels(QString first, QString second);
    // Presets the first field (unchecked by its validator) and puts the focus in the second.
    void SetValue1(QString text);
    QString getValue1();
    QString getValue2();

private:
    Ui::DualInputDlg *ui;
};
