// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QAbstractItemDelegate>
#include <QTableWidget>
#include <memory>

/// A table bound to one collection parameter whose elements are rows of text columns, the
/// first column being the element's identifier. The value is one vector of Latin-1 texts per
/// column; a place is free while its identifier is empty. Cell edits are checked (no empty
/// cell, no text used elsewhere) and refused with a message.
class TELECFG_EXPORT CfgTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgTableWidget(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgTableWidget() override;

    /// @copydoc CfgCheckBox::setReference
    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    /// @copydoc CfgCheckBox::updateControl
    void updateControl(int hardwareId);
    /// @copydoc CfgCheckBox::updateEnableState
    void updateEnableState(bool state);
    /// @copydoc CfgCheckBox::setEnabled
    void setEnabled(bool bEnable);
    /// @copydoc CfgCheckBox::setError
    void setError(bool error);
    /// @copydoc CfgCheckBox::isError
    bool isError();

    /// Adds a row (a QStringList, identifier first) at the first free place, or brings back a
    /// removed row with the same identifier. 1 when refused as a duplicate, otherwise 0.
    /// Adds a row at the first free place, or brings back a removed row with the same identifier.
    /// @param value a QStringList, identifier first.
    /// @param ref the bound collection's reference number.
    /// @return 1 when refused as a duplicate (after a message box), otherwise 0.
    int addValue(QVariant value, int ref);
    /// Stores the cell that now holds `value`. 1 when refused as a duplicate, otherwise 0.
    /// Stores the cell that now holds a text, after checking it against every other cell.
    /// @param value the cell's new text.
    /// @param ref the bound collection's reference number.
    /// @return 1 when refused as a duplicate (after a message box), otherwise 0.
    int addValue(QString value, int ref);
    /// Hands `value` to the host as the bound parameter's value.
    /// Hands a value to the host as the bound parameter's value.
    /// @param value the whole value, a QVector<QVector<QByteArray>>.
    void setValue(QVariant value);
    /// Removes the selected rows; true when the collection has any places at all.
    /// Removes the selected rows; rows stored on the device stay, grey.
    /// @param ref the bound collection's reference number.
    /// @return true when the collection has any places at all.
    bool remove(int ref);
    /// Looks a row up by its identifier.
    /// @param value the identifier, or a QStringList whose first text is.
    /// @param[out] index the row's place, or -1 when no cell has the text.
    /// @return true when a present row has the identifier.
    bool isItemExists(QVariant value, int &index);
    /// As above for one cell text, not counting the place given in `index` (-1: none).
    /// Looks a cell text up in every cell.
    /// @param value the text looked for.
    /// @param[in,out] index in: the place not to count (-1: none); out: the place found, or -1.
    /// @return true when a present row has the text in a cell.
    bool isItemExists(QString value, int &index);
    /// Sets the input mode hosts pass for byte elements; kept for hosts, it changes nothing
    /// shown.
    /// @param mode the host's mode number.
    void inputMode(int mode);

public slots:
    /// Ends an in-place cell edit: an empty text or one found in another cell goes back with a
    /// message. Connected to the item delegate; hosts need not call it.
    /// @param editor the editor widget closing.
    /// @param hint the delegate's hint, not used.
    void ListWidgetEditEnd(QWidget *editor, QAbstractItemDelegate::EndEditHint hint);
    /// Remembers the text under edit when the user opens a cell. Connected by the table.
    /// @param item the cell opened; the current cell is read.
    void doubleClicked(QTableWidgetItem *item);
    /// @copydoc CfgCheckBox::setHidden
    void setHidden(bool hidden);
    /// For a widget the host places in a cell, carrying the properties "row" and "col".
    /// Stores the value of a widget the host placed in a cell. Connect the widget's change
    /// signal here and give it the dynamic properties "row" and "col".
    /// @param value the widget's new value.
    void changed(int value);

private:
    int refuseDuplicate();
    bool placeCell(int row, int column, QTableWidgetItem *cell);
    bool searchItems(const QList<QTableWidgetItem *> &items, const QString &text, int exclude,
                     int &index);
    void storeColumns(int ref, const QVector<QVector<QByteArray>> &columns);

    /// The binding and the control's own state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
