// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QAbstractItemDelegate>
#include <QTableWidget>

// A table bound to one collection parameter whose elements are rows of text columns, the
// first column being the element's identifier. The value is one vector of Latin-1 texts per
// column; a place is free while its identifier is empty. Cell edits are checked (no empty
// cell, no text used elsewhere) and refused with a message.
class TELECFG_EXPORT CfgTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    explicit CfgTableWidget(QWidget *parent = nullptr);
    ~CfgTableWidget() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setEnabled(bool bEnable);
    void setError(bool error);
    bool isError();

    // Adds a row (a QStringList, identifier first) at the first free place, or brings back a
    // removed row with the same identifier. 1 when refused as a duplicate, otherwise 0.
    int addValue(QVariant value, int ref);
    // Stores the cell that now holds `value`. 1 when refused as a duplicate, otherwise 0.
    int addValue(QString value, int ref);
    // Hands `value` to the host as the bound parameter's value.
    void setValue(QVariant value);
    // Removes the selected rows; true when the collection has any places at all.
    bool remove(int ref);
    bool isItemExists(QVariant value, int &index);
    // As above for one cell text, not counting the place given in `index` (-1: none).
    bool isItemExists(QString value, int &index);
    void inputMode(int mode);

public slots:
    void ListWidgetEditEnd(QWidget *editor, QAbstractItemDelegate::EndEditHint hint);
    void doubleClicked(QTableWidgetItem *item);
    void setHidden(bool hidden);
    // For a widget the host places in a cell, carrying the properties "row" and "col".
    void changed(int value);

private:
    int refuseDuplicate();
    bool placeCell(int row, int column, QTableWidgetItem *cell);
    bool searchItems(const QList<QTableWidgetItem *> &items, const QString &text, int exclude,
                     int &index);
    void storeColumns(int ref, const QVector<QVector<QByteArray>> &columns);

    BoundControl bound;
    QString editText;
    int inputModeValue = 0;
};
