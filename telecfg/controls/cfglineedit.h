// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QLineEdit>
#include <memory>

/// A line edit bound to one parameter edited as text. The record's `type` chooses a
/// validator (decimal ones follow the system locale's separator); every edit is written
/// as a QString. Red when the host says invalid or `error` is set, which also blocks edits.
class TELECFG_EXPORT CfgLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgLineEdit(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgLineEdit() override;

    /// @copydoc CfgCheckBox::setReference
    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    /// @copydoc CfgCheckBox::updateControl
    void updateControl(int hardwareId);
    /// @copydoc CfgCheckBox::updateEnableState
    void updateEnableState(bool state);
    /// @copydoc CfgCheckBox::setEnabled
    void setEnabled(bool bEnable);
    /// @copydoc CfgCheckBox::setHidden
    void setHidden(bool hidden);
    /// @copydoc CfgCheckBox::setError
    void setError(bool error);
    /// @copydoc CfgCheckBox::isError
    bool isError();
    /// Shows `text` without writing it to the host.
    /// Shows a text without writing it to the host.
    /// @param text the text to show.
    void displayText(QString text);
    /// The widget's own getter of the same name stays reachable.
    using QLineEdit::displayText;

public slots:
    /// The text then counts as the user's edit.
    /// Sets the text as if the user typed it: a valid text is written to the host.
    /// @param text the new text.
    void setText(const QString &text);

private slots:
    void updateText(const QString &text);

private:
    void installValidator(int type);

    /// The binding and the control's own state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
