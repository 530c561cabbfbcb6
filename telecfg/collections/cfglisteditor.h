// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QWidget>
#include <memory>

class CfgListWidget;
class QPushButton;

/// @file
/// A list editor ready to edit: the bound list with its own Add and Remove buttons.

/// A CfgListWidget with its own "Dodaj…" and "Usuń" buttons, bound as one control. Add asks
/// the user for the element with an input that fits the bound parameter's element type and
/// adds it through the list's addValue(); Remove removes the selected elements through the
/// list's remove(). The host never repeats the parameter number:
///
/// @code
/// CfgListEditor *editor = new CfgListEditor(page);   // or cfg_302 in a designed form
/// editor->setReference(&table, 302, label, {});
/// editor->updateControl(hardwareId);
/// @endcode
///
/// The input by element type:
/// - numbers (types 8 and 24 without names): a spin box from 1 (0 marks a free place) to the
///   element's largest value, narrowed by the record's `minimum` and `maximum` where set;
/// - named numbers (types 8 and 24 with names): the names, to pick one;
/// - texts (types 20 and 13): a line edit limited to the element's length, which is the
///   `maxLength` rule of a ParameterTable, else for byte elements the size free places keep
///   (zero-filled places of the device's field size); no limit where neither tells one;
/// - mobile networks (type 29): the country and operator dialog (chooseMobileNetwork()).
///
/// Remove is disabled while nothing is selected, Add while the collection has no free place,
/// and both while the editor is disabled. The editor hides with its parameter as a whole.
/// Hosts that draw their own buttons keep using CfgListWidget and its operations directly.
class TELECFG_EXPORT CfgListEditor : public QWidget
{
    Q_OBJECT

public:
    /// Creates an unbound editor; bind it with setReference().
    /// @param parent the owning widget; may be null.
    explicit CfgListEditor(QWidget *parent = nullptr);
    /// Destroys the editor and its list; the host's table and the related widgets are left alone.
    ~CfgListEditor() override;

    /// The bound list, for what the editor does not offer itself (its items, removeAll()).
    /// @return the list, owned by the editor.
    CfgListWidget *list() const;
    /// The Add button ("Dodaj…"), for a host that relabels or moves it.
    /// @return the button, owned by the editor.
    QPushButton *addButton() const;
    /// The Remove button ("Usuń").
    /// @return the button, owned by the editor.
    QPushButton *removeButton() const;

    /// Binds the list (CfgListWidget::setReference); the editor hides with it.
    /// @copydetails CfgCheckBox::setReference
    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    /// Refreshes the list (CfgListWidget::updateControl) and the buttons.
    /// @param hardwareId the connected device's hardware id; 0 keeps the last one given.
    void updateControl(int hardwareId);
    /// Opens or closes the enable gate of the editor as a whole (list and buttons).
    /// @param state false keeps the editor disabled whatever setEnabled() asks.
    void updateEnableState(bool state);
    /// Enables or disables the editor as a whole, within the enable gate.
    /// @param bEnable the wanted state.
    void setEnabled(bool bEnable);
    /// Sets the list's error flag (CfgListWidget::setError).
    /// @param error the flag.
    void setError(bool error);
    /// The list's error flag.
    /// @return the flag; binding clears it.
    bool isError();

public slots:
    /// Hides the editor on request, or shows it where the parameter exists
    /// (CfgListWidget::setHidden).
    /// @param hidden the request.
    void setHidden(bool hidden);
    /// What Add does: asks for an element and adds it through the list. A cancelled input, or
    /// a mobile network or number of 0 (which marks a free place), adds nothing.
    void addElement();
    /// What Remove does: removes the selected elements through the list.
    void removeSelected();

protected:
    /// Follows the list's enabled state (a host may disable the list itself).
    /// @param watched the object whose event arrives.
    /// @param event the event.
    /// @return true when the event was taken.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateButtons();
    void scheduleButtons();
    QVariant askElement();

    struct Private;
    const std::unique_ptr<Private> d;
};
