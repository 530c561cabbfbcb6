// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QWidget>
#include <memory>

class FormState;
class ParameterFilter;
class ParameterModel;
class QLineEdit;
class QTableView;

/// @file
/// Every parameter of the device in one searchable, editable view.

/// A ready view of every parameter a FormState follows: a search field, toggles for changed,
/// shown-for-the-device and invalid parameters only, a page choice where the table has pages,
/// and the parameters' table (ParameterModel through a ParameterFilter). Keyboard first:
/// typing anywhere in the view searches, Enter or F2 edits the current parameter's value with
/// the bound control of its kind (the same rules as on its page), Escape cancels the edit.
/// Edits go through the table, so pages bound to the same table follow at once, and the other
/// way round.
///
/// @code
/// auto *browser = new ParameterBrowser(binder.state(), tabs);
/// tabs->addTab(browser, tr("Wszystkie parametry"));
/// browser->setHardwareId(hardwareId);
/// @endcode
class TELECFG_EXPORT ParameterBrowser : public QWidget
{
    Q_OBJECT
public:
    /// A browser over every parameter `state` follows.
    /// @param state the form-wide state of the table; not owned, it must outlive the browser.
    /// @param parent the parent widget; may be null.
    explicit ParameterBrowser(FormState *state, QWidget *parent = nullptr);
    ~ParameterBrowser() override;

    /// The connected device's hardware id, for the "shown for this device" filter and column.
    /// @param hardwareId the hardware id.
    void setHardwareId(int hardwareId);
    /// The model of every parameter. @return the model, owned by the browser.
    ParameterModel *model() const;
    /// The filter between the model and the view. @return the filter, owned by the browser.
    ParameterFilter *filter() const;
    /// The view. @return the view, owned by the browser.
    QTableView *view() const;
    /// The search field. @return the field, owned by the browser.
    QLineEdit *searchField() const;

protected:
    /// Takes the view's keys: Enter edits, letters and digits go on the search.
    /// @param watched the object whose event arrives.
    /// @param event the event.
    /// @return true when the event was taken.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
