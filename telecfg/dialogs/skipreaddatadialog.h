// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>
#include <memory>

/// Lets the user choose the data groups a read leaves out. The boxes start from the flags
/// at every exec; the flags take the boxes' values only when the user confirms.
class TELECFG_EXPORT SkipReadDataDialog : public QDialog
{
    Q_OBJECT

public:
    /// Builds the dialog with the host's present choices.
    /// @param parent the owning widget; may be null.
    /// @param skipBt whether the Bluetooth data are left out.
    /// @param skipFuel whether the fuel data are left out.
    /// @param skipCan whether the CAN data are left out.
    /// @param skipConf whether the configuration is left out.
    /// @param skipDallas whether the 1-Wire key data are left out.
    SkipReadDataDialog(QWidget *parent, bool skipBt, bool skipFuel, bool skipCan, bool skipConf,
                       bool skipDallas);
    /// Destroys the dialog and its form.
    ~SkipReadDataDialog() override;

    /// Shows the boxes as the flags stand and runs the dialog; the flags take the boxes' values
    /// only when the user confirms.
    /// @return QDialog::Accepted or QDialog::Rejected.
    int exec() override;

    /// @return whether the Bluetooth data are left out.
    bool getSkipBt() const;
    /// @return whether the fuel data are left out.
    bool getSkipFuel() const;
    /// @return whether the CAN data are left out.
    bool getSkipCan() const;
    /// @return whether the configuration is left out.
    bool getSkipConf() const;
    /// @return whether the 1-Wire key data are left out.
    bool getSkipDallas() const;

private slots:
    // The form's buttons reach these by name (setupUi connects slots by name): hosts and
    // their forms rely on the names, so the by-name connection stays.
    void on_buttonBox_accepted(); // clazy:exclude=connect-by-name
    void on_buttonBox_rejected(); // clazy:exclude=connect-by-name

private:
    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
