// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QCheckBox>
#include <memory>

/// A check box bound to one flag parameter. Type 22 holds the flag as an int 0/1,
/// every other type as a bool. Painted grey or yellow (modified), by enabled state.
class TELECFG_EXPORT CfgCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgCheckBox(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgCheckBox() override;

    /// Binds the control to one parameter of the host's table and shows its value.
    ///
    /// Takes the record's tool tip and writes this control and `label` into the record's `control`
    /// and `label` fields. A later call replaces the binding.
    ///
    /// Loading the value may write it back to the host: the check box when its state changes,
    /// the spin boxes once for each of minimum, maximum and value that changes the widget's
    /// value (so a value outside the bounds reaches the host clamped), and the line edit its
    /// text. The combo box, the radio button and the collection editors write nothing.
    /// @param iface the host's table; not owned, it must outlive the binding. A null table leaves
    ///        the control unbound, and an unbound control ignores the other calls.
    /// @param ref the parameter's reference number.
    /// @param label the parameter's label, only recorded in the record; not owned, may be null.
    /// @param relatedWidgets widgets hidden and shown together with the control (add the label to
    ///        have it follow); not owned.
    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    /// Refreshes the control from the host's table.
    ///
    /// Hides the control and its related widgets where the parameter does not exist for the
    /// device (configuration version outside the record's range, hardware id not listed, hidden
    /// on request, above the licence level), shows them otherwise, and paints the state colour
    /// from the host's answers. Does nothing while unbound.
    /// @param hardwareId the connected device's hardware id; 0 keeps the last non-zero id.
    void updateControl(int hardwareId);
    /// Sets the error flag, which the host raises for a value the device refused.
    /// @param error the new flag; binding clears it.
    void setError(bool error);
    /// The error flag.
    /// @return the flag last given to setError(), false after binding.
    bool isError();
    /// The bound parameter.
    /// @return its reference number; 0 before the first binding.
    int getReference();

public slots:
    /// Enables or disables the control, then refreshes it.
    /// @param bEnable whether the user may edit; the control is enabled only while the host's
    ///        gate (updateEnableState()) is open.
    void setEnabled(bool bEnable);
    /// Sets the host's enable gate, then refreshes the control.
    /// @param state true opens the gate (the enabled state stays as it is), false closes it and
    ///        disables the control.
    void updateEnableState(bool state);
    /// Hides or shows the control and records the request in the bound record's `hidden`,
    /// so that later refreshes keep it; refreshes when bound.
    /// @param hidden true to hide.
    void setHidden(bool hidden);

private slots:
    void changed(int state);

private:
    void drawBitmap(bool enabled, bool modified);

    /// The binding and the control's own state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
