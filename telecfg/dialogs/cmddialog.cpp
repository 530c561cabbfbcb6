// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/cmddialog.h"
#include "ui_cmddialog.h"

#include <QCompleter>
#include <QDebug>
#include <algorithm>
#include <utility>

struct CmdDialog::Private
{
    Ui::CmdDialog ui;
    QHash<int, QString> *commands = nullptr;
};

CmdDialog::CmdDialog(QWidget *parent, QHash<int, QString> &commandList)
    : QDialog(parent), d(std::make_unique<Private>())
{
    d->commands = &commandList;
    Ui::CmdDialog *ui = &d->ui;
    QHash<int, QString> *commands = d->commands;
    ui->setupUi(this);

    if (!commands->isEmpty()) {
        QList<int> keys = commands->keys();
        qDebug() << keys;
        std::sort(keys.begin(), keys.end());
        qDebug() << keys;
        // Items in ascending key order from 0; negative keys are never offered. Walking the
        // sorted keys instead of every number up to the largest keeps a huge key cheap.
        for (int key : std::as_const(keys)) {
            if (key >= 0)
                ui->leCmd->addItem(commands->value(key), QVariant(key));
        }
    }
    ui->leCmd->setCurrentIndex(-1);
    if (QCompleter *completer = ui->leCmd->completer())
        completer->setCaseSensitivity(Qt::CaseSensitive);
    connect(ui->leCmd, SIGNAL(editTextChanged(QString)), this, SLOT(setNewText(QString)));

    setWindowTitle(tr("Wykonaj zdalny rozkaz"));
    ui->leCmd->setFocus(Qt::OtherFocusReason);
}

CmdDialog::~CmdDialog() = default;

QString CmdDialog::getCmd()
{
    if (!d->ui.leCmd)
        return QString();

    QString typed = d->ui.leCmd->currentText();
    QString wantedCommand;
    QString wantedArgument;
    splitCommandAndArg(typed, wantedCommand, wantedArgument);

    for (int i = 0; i < d->ui.leCmd->count(); ++i) {
        QString itemText = d->ui.leCmd->itemText(i);
        QString command;
        QString argument;
        splitCommandAndArg(itemText, command, argument);
        if (command == wantedCommand && argument == wantedArgument)
            return itemText;
    }
    return typed;
}

void CmdDialog::on_buttonBox_accepted()
{
    QDialog::accept();
}

void CmdDialog::on_buttonBox_rejected()
{
    QDialog::reject();
}

void CmdDialog::setNewText(const QString &newText)
{
    qDebug() << newText;
}

// The word before the first whitespace is the command, compared without case; everything
// after it is the argument, compared with case. All whitespace is dropped, also inside the
// argument, so "RESET   5" is "reset" + "5" and "ab c d" is "ab" + "cd".
void CmdDialog::splitCommandAndArg(QString text, QString &command, QString &argument)
{
    bool pastCommand = false;
    for (const QChar c : std::as_const(text)) {
        if (c.isSpace()) {
            pastCommand = true;
            continue;
        }
        if (pastCommand)
            argument.append(c);
        else
            command.append(c.toLower());
    }
}
