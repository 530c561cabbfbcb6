// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QAbstractItemDelegate>
#include <QListWidget>
#include <memory>

struct ElementContext;

// A list bound to one collection parameter: a fixed number of element places, one item for
// each place in use. Removing a stored element keeps its item, grey, until the next binding;
// adding its text again brings it back. Items are painted as removed, invalid, modified or
// existing. The record's type selects the element type (8, 24, 29, 20 or 13).
class TELECFG_EXPORT CfgListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit CfgListWidget(QWidget *parent = nullptr);
    ~CfgListWidget() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setEnabled(bool bEnable);
    void setError(bool error);
    bool isError();

    // Adds an element at the lowest free place, or brings back a removed one with the same
    // text. Returns 1 when a present element already has the text (after a message box),
    // otherwise 0.
    int addValue(QVariant value, int ref);
    // Writes one element into the bound parameter's vector and hands the vector to the host.
    void setValue(int index, QVariant value);
    // Remove the selected items, or all. True while the collection has room left.
    bool remove(int ref);
    bool removeAll(int ref);
    // Looks an element up by its item text: true with its place when a present element has
    // it; false with -1 when no item has it; false with a place when only removed items
    // have it or the text is the one under edit.
    bool isItemExists(QVariant value, int &index);
    void inputMode(int mode);

public slots:
    void ListWidgetEditEnd(QWidget *editor, QAbstractItemDelegate::EndEditHint hint);
    void doubleClicked(QListWidgetItem *item);
    void ListWidgetEditCommit(QWidget *editor);
    void setHidden(bool hidden);

private:
    bool removeInternal(const QList<QListWidgetItem *> &items, int ref);
    QByteArray convertData(const QByteArray &data, int mode);
    ElementContext context(int ref);
    void addNew(const QVariant &value, int ref);
    void restore(const QVariant &value, int ref, int index);

    BoundControl bound;
    QString editText;
    int inputModeValue = 1;
    // What the last repaint painted from and what changed since, so a repaint after an add
    // does not go through every item.
    struct Tracking;
    std::unique_ptr<Tracking> tracking;
};
