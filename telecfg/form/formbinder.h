// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/controls/visibility.h"
#include "telecfg/telecfg_export.h"

#include <QList>
#include <QObject>
#include <QString>
#include <functional>
#include <memory>

class FormState;

/// @file
/// Binding every control of a designed form in one call.

/// Binds a designed form in one call. Every bound control (the six value controls, the two
/// collection editors and the list editor with its buttons) whose object name is
/// `cfg_<parameter number>` is bound to that parameter; the QLabel whose buddy it is becomes
/// its label and hides with it. A widget named `cfg_<number>_<anything>` (the buttons of a
/// list, say) hides with the control of that parameter too.
///
/// @code
/// FormBinder binder;
/// for (const FormBinder::Problem &problem : binder.bind(ui.page, &table))
///     qWarning() << problem.text();
/// binder.refresh(hardwareId);   // visibility and colours of every control of the form
/// @endcode
///
/// Names that do not resolve come back as problems, and the control stays unbound. The binder
/// owns neither the form nor the table; it holds the controls through guarded pointers, so a
/// control the host deletes is left out of later calls. The table must outlive the binding.
class TELECFG_EXPORT FormBinder : public QObject
{
    Q_OBJECT

public:
    /// A `cfg_` name of the form that did not bind.
    struct Problem
    {
        /// Why a name did not bind.
        enum Reason {
            NoSuchParameter,  ///< the table has no parameter of that number
            NotABoundControl, ///< the widget is no bound control
            BadNumber,        ///< what follows "cfg_" is no parameter number
            NotAChoice,       ///< a radio button's record is of no type that checks it
            Unnamed,          ///< a bound control without a `cfg_` name (setReportUnnamed())
        };
        /// The widget's object name.
        QString objectName;
        /// The parameter number in the name; 0 when the number does not parse.
        int ref = 0;
        /// Why it did not bind.
        Reason reason = BadNumber;
        /// The problem in words, for a developer's log: "cfg_105: no such parameter".
        /// @return the object name and the reason.
        QString text() const;
    };

    /// An empty binder.
    /// @param parent the QObject parent, which owns the binder; may be null.
    explicit FormBinder(QObject *parent = nullptr);
    ~FormBinder() override;

    /// Binds the form's controls to `table`, replacing what the binder held before, and
    /// loads each control's value (binding is what loads it).
    /// @param form the designed form; its child widgets are searched. Null binds nothing.
    /// @param table the parameter table; null binds nothing. Not owned.
    /// @param exists answers whether the table has a parameter; without it a ParameterTable
    ///        answers by its records and any other table is taken to hold every number.
    /// @return the names that did not bind, in the order of the form's widgets; empty when
    ///         every `cfg_` name bound.
    QList<Problem> bind(QWidget *form, MainConfigIFace *table,
                        std::function<bool(int)> exists = {});
    /// Whether bind() also reports bound controls whose object name does not start with
    /// `cfg_` (a control left with the name Designer gave it stays unbound). Off by default:
    /// a host may bind some controls itself.
    /// @param report true to report them as Problem::Unnamed.
    void setReportUnnamed(bool report);
    /// Binds every control again: binding is what loads a value into a control. A binder that
    /// follows a FormState does it by itself; without one, a host calls this after it replaced
    /// values behind the controls' back (a revert, a load).
    void rebind();
    /// Makes the form follow every change of the table: after an edit in one control the other
    /// controls of that parameter and of its radio group show the new value and state; after a
    /// revert, a load or the host's own setValue() every control concerned shows its value.
    /// Binding to a ParameterTable follows a state of the binder's own by itself; a host with
    /// its own table makes a FormState over it, calls its tableChanged() from setValue(), and
    /// passes it here. The state must outlive the binder or be followed no more (null).
    /// @param state the state to follow; null follows nothing.
    void follow(FormState *state);
    /// The state the form follows.
    /// @return the state given to follow(), or the binder's own over a ParameterTable; null
    ///         before bind() to a ParameterTable or follow().
    FormState *state() const;
    /// Refreshes the visibility and colours of every bound control.
    /// @param hardwareId the connected device's hardware id; 0 takes the id of the last refresh.
    void refresh(int hardwareId = 0);

    /// The parameters bound.
    /// @return their numbers in the order of the form's widgets, deleted controls left out.
    QList<int> parameters() const;
    /// The control bound to a parameter.
    /// @param ref the parameter number.
    /// @return the control, or null when none is bound to it (or it was deleted). Not owned.
    QWidget *control(int ref) const;

    /// Why the control of a parameter is hidden, in words.
    /// @param ref the parameter number.
    /// @param hardwareId the hardware id to decide for; 0 takes the id of the last refresh.
    /// @return "parameter 5 is shown", or the reason with the figures that decide it
    ///         ("parameter 5 is hidden: configuration version 12 is below its lowest version
    ///         13"); "parameter 5: the form is not bound" before bind().
    QString explainHidden(int ref, int hardwareId = 0) const;
    /// Why the control of a parameter of any table would be hidden, in words.
    /// @param iface the parameter table.
    /// @param ref the parameter number.
    /// @param hardwareId the hardware id to decide for.
    /// @return as explainHidden(int, int) const.
    static QString explainHidden(MainConfigIFace &iface, int ref, int hardwareId);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
