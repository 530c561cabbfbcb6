// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QComboBox>
#include <memory>

/// A combo box bound to one parameter whose allowed values are the record's `options`:
/// key = position, `first` = shown text, `second` = the value written (as a QString).
/// Yellow comes from matchesStored, red from `error`; the only control with a signal.
class TELECFG_EXPORT CfgComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgComboBox(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgComboBox() override;

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
    /// Paints the state colour: red for the error flag, yellow when the selected value
    /// does not match the stored one (MainConfigIFace::matchesStored()).
    /// @param enabled false chooses the paler colours of a disabled control.
    void updateColor(bool enabled);
    /// Selects the entry holding the value of a parameter, which may be another than the bound
    /// one. The selection change writes the value unless setSkip(true) is in force.
    /// @param ref the reference number of the parameter whose value is shown.
    void updateSelection(int ref);
    /// Suppresses writing: while set, a change of the selection is not written to the host.
    /// @param skip true to suppress, false to write again.
    void setSkip(bool skip);

public slots:
    /// @copydoc CfgCheckBox::setEnabled
    void setEnabled(bool bEnable);
    /// @copydoc CfgCheckBox::setHidden
    void setHidden(bool hidden);

signals:
    /// Emitted after a user's change was written to the host and the control refreshed.
    void cfgComboBoxChanged();

private slots:
    void changed(const QString &text);

private:
    void selectValue(const QVariant &value);

    /// The binding and the control's own state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
