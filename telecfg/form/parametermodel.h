// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QAbstractTableModel>
#include <memory>

class FormState;

/// @file
/// Every parameter of a table as rows of an item model.

/// One row per parameter a FormState follows: its number, its name as the user sees it, the
/// current and the stored value as the user reads them, and its state in words. Roles tell
/// the state to views and filters (ModifiedRole, InvalidRole, ShownRole, HiddenReasonRole).
///
/// A value changed anywhere (a bound control, the browser, the host) updates that one row
/// (dataChanged); only a load of the whole table resets the model. Editing the value column
/// writes through the table, so bound controls of the same table follow.
class TELECFG_EXPORT ParameterModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    /// The columns.
    enum Column {
        NumberColumn, ///< the parameter number
        NameColumn,   ///< its label text, else the name the table gives it
        ValueColumn,  ///< the current value as the user reads it; editable
        StoredColumn, ///< the value stored on the device, where the table tells it
        StateColumn,  ///< "Zmieniony", "Nieprawidłowy", "Ukryty: ..." in words
        ColumnCount
    };
    /// The roles beside the display texts.
    enum Role {
        ParameterRole = Qt::UserRole + 1, ///< int: the parameter number
        ModifiedRole,                     ///< bool: the value differs from the stored one
        InvalidRole,                      ///< bool: the value breaks its rules
        ShownRole,        ///< bool: shown for the device (version, hardware id, licence level)
        HiddenReasonRole, ///< QString: why it is hidden, in words; empty while shown
        PageRole,         ///< QString: the page (group) the table puts it on
        SearchTextRole,   ///< QString: number, name, description and option texts, lower case
    };

    /// A model over every parameter `state` follows.
    /// @param state the form-wide state of the table; not owned, it must outlive the model.
    /// @param parent the QObject parent; may be null.
    explicit ParameterModel(FormState *state, QObject *parent = nullptr);
    ~ParameterModel() override;

    /// The form-wide state the model shows.
    /// @return the state; not owned.
    FormState *state() const;
    /// The connected device's hardware id, which decides ShownRole.
    /// @param hardwareId the hardware id; rows whose shown state changes are told.
    void setHardwareId(int hardwareId);
    /// The hardware id ShownRole is decided for.
    /// @return the id last set; 0 at first.
    int hardwareId() const;
    /// The row of a parameter.
    /// @param ref the parameter number.
    /// @return its row, or -1 when the model has none.
    int rowOf(int ref) const;
    /// The parameter of a row.
    /// @param row the row.
    /// @return its number, or 0 outside the rows.
    int parameterAt(int row) const;

    /// One row per parameter. @param parent the root. @return the number of parameters.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /// @param parent the root. @return ColumnCount.
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /// The texts of the columns and the roles above.
    /// @param index the cell. @param role the role. @return the data; invalid where none.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The column titles.
    /// @param section the column. @param orientation horizontal for titles.
    /// @param role the role. @return the title.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /// The value column is editable. @param index the cell. @return its flags.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Writes an edited value through the table (Qt::EditRole of the value column).
    /// @param index the cell. @param value the new value. @param role Qt::EditRole.
    /// @return true when written.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    struct Private;
    const std::unique_ptr<Private> d;
};
