// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QObject>
#include <memory>

class FormBinder;
class FormState;
class QMenu;
class QUndoStack;
class QWidget;

/// @file
/// Taking edits back: the form's undo / redo history and restoring a stored value.

/// Keeps an undo / redo history of the changes of a table's values, one step per finished
/// edit, and puts a parameter's stored value back on request. Undo and redo write through the
/// table, so every control a FormBinder follows shows the value, its colour and its cues.
///
/// What makes one step:
/// - Typing in one line edit or spin box (its text or its steps) is one step until the
///   control loses focus or another parameter changes.
/// - A check box, a combo box or a radio choice is one step per change; the members of a
///   radio group that change with the choice belong to the same step.
/// - Values the host writes in one go (setValue() calls without returning to the event
///   loop between them, a whole revert) are one step: a revert by mistake is taken back with
///   one undo.
/// - A value edited back to the one before leaves no step behind.
/// - Loading the whole table (FormState::reloaded()) empties the history: the values before
///   belong to another configuration. Saving keeps it.
///
/// @code
/// FormUndo undo(binder.state());
/// undo.attach(&binder);            // "Przywróć zapisaną wartość", undo and redo per control
/// undo.installShortcuts(window);   // the standard undo and redo keys inside the form
/// editMenu->addAction(undo.stack()->createUndoAction(editMenu, tr("Cofnij")));
/// @endcode
class TELECFG_EXPORT FormUndo : public QObject
{
    Q_OBJECT

public:
    /// Follows a form state from now on: every change of a value it tells becomes a step.
    /// @param state the state of the table; not owned, it must outlive the history.
    /// @param parent the QObject parent; may be null.
    explicit FormUndo(FormState *state, QObject *parent = nullptr);
    ~FormUndo() override;

    /// The state followed.
    /// @return the state given at construction.
    FormState *state() const;
    /// The history, for the host's own undo and redo actions, a QUndoView or a clean mark.
    /// @return the stack; owned by this object.
    QUndoStack *stack() const;

    /// Puts a parameter's stored value back as one step of its own (FormState::restore(), so
    /// over a ParameterTable only). A radio group takes its stored choice.
    /// @param ref the parameter number.
    /// @return true when the value was put back; false when it did not differ from the stored
    ///         one or the table is not a ParameterTable.
    bool restore(int ref);

    /// Gives every control the binder holds now a context menu: the control's own standard
    /// entries where it has them (a line edit's, a spin box's text), then "Przywróć zapisaną
    /// wartość" (enabled while the parameter differs from its stored value), undo and redo.
    /// Controls bound later are attached by calling this again.
    /// @param binder the binder of the form; not owned.
    void attach(FormBinder *binder);
    /// The context menu attach() shows for a control, for a host that shows it itself or
    /// adds entries of its own.
    /// @param control the bound control; its standard entries head the menu.
    /// @param ref the parameter it is bound to.
    /// @return a new menu; the caller owns it.
    QMenu *createContextMenu(QWidget *control, int ref);

    /// Adds undo and redo actions on the standard keys (QKeySequence::Undo and Redo) to the
    /// form, active while the focus is anywhere inside it. A focused line edit or spin box
    /// undoes its own typing first, as every text field does; when it has nothing of its own
    /// left to undo (or redo), the key takes back the form's last step instead. A host whose
    /// window already has undo actions on these keys uses stack() instead: two actions on one
    /// key inside one window answer neither.
    /// @param form the form; the line edits and spin boxes it holds now learn the rule above.
    void installShortcuts(QWidget *form);

protected:
    /// Shows the context menus and lets the form's keys through a text field with nothing
    /// of its own to undo.
    /// @param watched the object whose event arrives.
    /// @param event the event.
    /// @return true when the event was taken.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
