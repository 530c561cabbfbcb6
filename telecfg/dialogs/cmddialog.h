// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>
#include <QHash>

namespace Ui {
class CmdDialog;
}

// Asks for a remote command. Offers the host's commands (key = command number) in an
// editable list and returns either a listed command's own text, when the typed text is that
// command written more loosely, or the text as typed.
class TELECFG_EXPORT CmdDialog : public QDialog
{
    Q_OBJECT

public:
    // `commands` is read while the dialog is built, not later.
    CmdDialog(QWidget *parent, QHash<int, QString> &commands);
    ~CmdDialog() override;

    QString getCmd();

private slots:
    void on_buttonBox_accepted();
    void on_buttonBox_rejected();
    void setNewText(const QString &newText);

private:
    void splitCommandAndArg(QString text, QString &command, QString &argument);

    Ui::CmdDialog *ui;
    QHash<int, QString> *commands;
};
