// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QList>
#include <QObject>
#include <memory>

class ParameterTable;

/// @file
/// The state of a whole form: whether anything differs from the stored values, whether
/// anything is invalid, and which parameters.

/// Follows a parameter table and knows, for all its parameters at once, which differ from the
/// stored values and which break their rules. A value edited back to the stored one counts as
/// unchanged. The state is kept up to date one parameter at a time, so asking costs nothing
/// and an edit costs one parameter's check, whatever the table's size.
///
/// Over a ParameterTable it follows the table by itself. A host with its own MainConfigIFace
/// names the parameters and calls tableChanged() whenever a value changed outside a bound
/// control's edit (after a read from the device, a revert, a load); edits made in bound
/// controls reach it the same way when the host's setValue() calls it.
///
/// @code
/// FormState state(&table);
/// connect(&state, &FormState::modifiedChanged, saveButton, &QWidget::setEnabled);
/// connect(&state, &FormState::modifiedChanged, window, &QWidget::setWindowModified);
/// @endcode
class TELECFG_EXPORT FormState : public QObject
{
    Q_OBJECT
public:
    /// Follows a ParameterTable: every parameter it holds, its value and stored value changes
    /// and its loads.
    /// @param table the table; not owned, it must outlive the state.
    /// @param parent the QObject parent; may be null.
    explicit FormState(ParameterTable *table, QObject *parent = nullptr);
    /// Follows a host's own table over the given parameters; the host calls tableChanged().
    /// @param table the table; not owned, it must outlive the state.
    /// @param parameters the parameter numbers, in the order lists are given back.
    /// @param parent the QObject parent; may be null.
    FormState(MainConfigIFace *table, const QList<int> &parameters, QObject *parent = nullptr);
    ~FormState() override;

    /// The table followed.
    /// @return the table; not owned.
    MainConfigIFace *table() const;
    /// The ParameterTable followed, where it is one.
    /// @return the table, or null for a host's own table.
    ParameterTable *parameterTable() const;
    /// The parameters followed.
    /// @return their numbers in the table's order.
    QList<int> parameters() const;
    /// Whether any parameter differs from its stored value.
    /// @return true while something differs.
    bool isModified() const;
    /// Whether every parameter passes its rules.
    /// @return false while any value is invalid.
    bool isValid() const;
    /// The parameters that differ from their stored values.
    /// @return their numbers in the table's order.
    QList<int> modifiedParameters() const;
    /// The parameters whose values break their rules.
    /// @return their numbers in the table's order.
    QList<int> invalidParameters() const;

    /// The current values become the stored ones (ParameterTable::save()). Over a host's own
    /// table the host saves and then calls reload().
    void save();
    /// The stored values become current again (ParameterTable::revert()); every bound control
    /// a FormBinder follows shows them. Over a host's own table the host reverts and then
    /// calls tableChanged() for each parameter, or reload().
    void revert();
    /// One parameter's stored value becomes current again (a ParameterTable only).
    /// @param ref the parameter number.
    /// @return true when the table is a ParameterTable and the value was put back.
    bool restore(int ref);

public slots:
    /// Tells the state that a parameter's value (or stored value) changed; the hook for a
    /// host's own table. Over a ParameterTable the state calls it itself.
    /// @param ref the parameter number.
    void tableChanged(int ref);
    /// Takes every parameter's state anew, after the host replaced many values at once.
    void reload();

signals:
    /// A parameter's value changed and its state was taken anew; the form's controls follow
    /// this (FormBinder::follow()).
    /// @param ref the parameter number.
    void parameterChanged(int ref);
    /// The whole table was loaded or reloaded: every value may be new.
    void reloaded();
    /// Whether anything differs flipped.
    /// @param modified true when something differs now.
    void modifiedChanged(bool modified);
    /// Whether every value passes its rules flipped.
    /// @param valid true when nothing is invalid now.
    void validChanged(bool valid);

private:
    void follow(const QList<int> &parameters);
    void take(int ref);
    void announceFlips(bool wasModified, bool wasValid);

    struct Private;
    const std::unique_ptr<Private> d;
};
