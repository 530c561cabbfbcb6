// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QDialog>
#include <QList>
#include <QVariant>
#include <functional>
#include <memory>

class MainConfigIFace;
class ParameterTable;

/// @file
/// Reviewing the changed parameters before they are written, and the question before a
/// window with unsaved changes closes.

/// Lists every changed parameter with its stored and its new value, so that the user sees
/// what is about to be written and can leave changes out.
///
/// Each row names the parameter as the user knows it (its label), and gives both values as
/// the user reads them: option texts, check box states in words, collections as their element
/// count with what was added, removed or changed ("3 elementy: 1 dodany, 1 usunięty"; the
/// elements themselves, network names included, in the cell's tool tip). Every row starts
/// checked; the user leaves a change out by unchecking it (Space toggles the current row),
/// confirms with Enter and cancels with Escape.
///
/// Over a ParameterTable the dialog lists modifiedParameters(), pages not shown included, and
/// on confirmation reverts the changes left out, so that only the chosen ones remain to write:
///
/// @code
/// ChangeReview review(&table, this);
/// if (review.exec() == QDialog::Accepted) {
///     writeToDevice(review.chosen());   // the host's own writing
///     table.save();
/// }
/// @endcode
///
/// Over a host's own MainConfigIFace the host names the changed parameters and how to read
/// a stored value; the dialog changes nothing there and leaves leftOut() to the host.
class TELECFG_EXPORT ChangeReview : public QDialog
{
    Q_OBJECT

public:
    /// Lists the changed parameters of a ready table.
    /// @param table the table, which must outlive the dialog; not owned.
    /// @param parent the owning widget; may be null.
    explicit ChangeReview(ParameterTable *table, QWidget *parent = nullptr);
    /// Lists the given parameters of a host's own table.
    /// @param table the host's table, which must outlive the dialog; not owned.
    /// @param changed the changed parameters, in the order they are listed.
    /// @param storedValue gives a parameter's stored value (an invalid one shows as empty).
    /// @param parent the owning widget; may be null.
    ChangeReview(MainConfigIFace *table, const QList<int> &changed,
                 std::function<QVariant(int)> storedValue, QWidget *parent = nullptr);
    /// Destroys the dialog and its form.
    ~ChangeReview() override;

    /// The changes the user kept, for the host to write.
    /// @return their parameter numbers, in the order listed.
    QList<int> chosen() const;
    /// The changes the user left out. Over a ParameterTable they are reverted on
    /// confirmation; over a host's own table reverting them is the host's business.
    /// @return their parameter numbers, in the order listed.
    QList<int> leftOut() const;

    /// Makes a window ask before it closes while the table holds unsaved changes. When the
    /// window is asked to close and nothing differs from the stored values (an edit taken back
    /// counts as no change), it closes without a question; otherwise a message box lists the
    /// changed parameters and offers:
    /// - "Zapisz": runs `save`; the window closes only when it returns true (it may show a
    ///   ChangeReview and write to the device);
    /// - "Odrzuć zmiany": reverts the table and closes;
    /// - "Anuluj" (also Escape): the window stays open.
    ///
    /// @code
    /// ChangeReview::askBeforeClosing(&window, &table, [&] { return saveAll(); });
    /// @endcode
    ///
    /// @param window the top-level window whose close events are watched; the watch is its
    ///        child and ends with it.
    /// @param table the table, which must outlive the window's watch; not owned.
    /// @param save the host's saving; returns whether the changes were saved.
    static void askBeforeClosing(QWidget *window, ParameterTable *table,
                                 std::function<bool()> save);

public slots:
    /// Confirms: over a ParameterTable the changes left out are reverted first.
    void accept() override;

protected:
    /// Space toggles the current row's check box wherever the row's focus is.
    /// @param watched the object whose event arrives.
    /// @param event the event.
    /// @return true when the event was taken.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
