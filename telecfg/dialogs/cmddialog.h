// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>
#include <QHash>
#include <memory>

/// Asks for a remote command. Offers the host's commands (key = command number) in an
/// editable list and returns either a listed command's own text, when the typed text is that
/// command written more loosely, or the text as typed.
class TELECFG_EXPORT CmdDialog : public QDialog
{
    Q_OBJECT

public:
    /// `commands` is read while the dialog is built, not later.
    /// Builds the dialog with the host's commands in ascending key order (negative keys are left
    /// out).
    /// @param parent the owning widget; may be null.
    /// @param commandList the commands, key = command number; read while the dialog is built and
    ///        not kept.
    CmdDialog(QWidget *parent, QHash<int, QString> &commandList);
    /// Destroys the dialog and its form.
    ~CmdDialog() override;

    /// The command to send, to be read after the dialog was accepted.
    /// @return a listed command's own text when the typed text is that command written more
    ///         loosely (other spacing or case), otherwise the text as typed.
    QString getCmd();

private slots:
    // The form's buttons reach these by name (setupUi connects slots by name): hosts and
    // their forms rely on the names, so the by-name connection stays.
    void on_buttonBox_accepted(); // clazy:exclude=connect-by-name
    void on_buttonBox_rejected(); // clazy:exclude=connect-by-name
    void setNewText(const QString &newText);

private:
    void splitCommandAndArg(QString text, QString &command, QString &argument);

    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
