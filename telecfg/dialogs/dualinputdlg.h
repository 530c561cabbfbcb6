// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>
#include <memory>

/// Asks for two numbers. The first is an integer, or with `decimals` above 0 a signed
/// decimal number with up to `decimals` digits after the system locale's separator; the
/// second is always an integer of 1 to 6 digits with no sign.
class TELECFG_EXPORT DualInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Builds the dialog.
    /// @param decimals 0 for an integer first value; above 0, the most digits the first value
    ///        may have after the system locale's decimal separator.
    /// @param parent the owning widget; may be null.
    explicit DualInputDlg(int decimals = 0, QWidget *parent = nullptr);
    /// Destroys the dialog and its form.
    ~DualInputDlg() override;

    /// Sets the texts beside the two fields.
    /// @param first the first field's label.
    /// @param second the second field's label.
    void setLabels(QString first, QString second);
    /// Presets the first field (unchecked by its validator) and puts the focus in the second.
    /// @param text the text put into the first field, unchecked by its validator.
    void SetValue1(QString text);
    /// @return the first field's text, as typed.
    QString getValue1();
    /// @return the second field's text, as typed.
    QString getValue2();

private:
    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
