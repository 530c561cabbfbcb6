// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QRadioButton>
#include <memory>

/// A radio button standing for one choice of a parameter: the value it writes when pressed
/// is the record's `minimum`. For type 4 it is checked when `value` equals that choice.
/// A modified parameter marks a checked button yellow; its look ignores the enabled state.
class TELECFG_EXPORT CfgRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgRadioButton(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgRadioButton() override;

    /// @copydoc CfgCheckBox::setReference
    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    /// @copydoc CfgCheckBox::updateControl
    void updateControl(int hardwareId);
    /// @copydoc CfgCheckBox::updateEnableState
    void updateEnableState(bool state);
    /// @copydoc CfgCheckBox::setError
    void setError(bool error);
    /// @copydoc CfgCheckBox::isError
    bool isError();
    /// Checks the button when `value` is its choice (type 4 only), then refreshes.
    /// Checks the button when a value is its choice (type 4 only), then refreshes.
    /// @param value the parameter's value to compare with the record's `minimum`.
    void setSelected(int value);

public slots:
    /// @copydoc CfgCheckBox::setEnabled
    void setEnabled(bool bEnable);
    /// @copydoc CfgCheckBox::setHidden
    void setHidden(bool hidden);

private slots:
    void change();

private:
    void drawBitmap(bool enabled, bool modified);

    /// The binding and the control's own state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
