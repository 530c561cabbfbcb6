// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QAbstractItemDelegate>
#include <QListWidget>
#include <memory>

struct ElementContext;

/// A list bound to one collection parameter: a fixed number of element places, one item for
/// each place in use. Removing a stored element keeps its item, grey, until the next binding;
/// adding its text again brings it back. Items are painted as removed, invalid, modified or
/// existing. The record's type selects the element type (8, 24, 29, 20 or 13).
class TELECFG_EXPORT CfgListWidget : public QListWidget
{
    Q_OBJECT

public:
    /// Creates an unbound control; bind it with setReference().
    /// @param parent the owning widget, as for every widget; may be null.
    explicit CfgListWidget(QWidget *parent = nullptr);
    /// Destroys the control; the host's table and the related widgets are left alone.
    ~CfgListWidget() override;

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

    /// Adds an element at the lowest free place, or brings back a removed one with the same
    /// text. Returns 1 when a present element already has the text (after a message box),
    /// otherwise 0.
    /// Adds an element at the lowest free place, or brings back a removed one with the same text.
    /// @param value the element, of the list's element type (a name or number for types 8 and 24).
    /// @param ref the bound collection's reference number.
    /// @return 1 when a present element already has the text (after a message box), otherwise 0,
    ///         also when the collection is full.
    int addValue(QVariant value, int ref);
    /// Writes one element into the bound parameter's vector and hands the vector to the host.
    /// Writes one element into the bound parameter's vector and hands the vector to the host.
    /// @param index the element's place; a place outside the vector changes nothing.
    /// @param value the element, of the list's element type.
    void setValue(int index, QVariant value);
    /// Remove the selected items, or all. True while the collection has room left.
    /// Removes the selected items.
    /// @param ref the bound collection's reference number.
    /// @return true while the collection has room left.
    bool remove(int ref);
    /// Removes every item.
    /// @param ref the bound collection's reference number.
    /// @return true while the collection has room left.
    bool removeAll(int ref);
    /// Looks an element up by its item text: true with its place when a present element has
    /// it; false with -1 when no item has it; false with a place when only removed items
    /// have it or the text is the one under edit.
    /// Looks an element up by its item text.
    /// @param value the element whose text is looked for.
    /// @param[out] index the element's place, or -1 when no item has the text.
    /// @return true when a present element has the text; false when no item has it, when only
    ///         removed items have it, or when the text is the one under edit.
    bool isItemExists(QVariant value, int &index);
    /// Sets the input mode of byte elements. Kept for hosts: the item text of a byte element
    /// is its bytes as text in every mode.
    /// @param mode the host's mode number.
    void inputMode(int mode);

public slots:
    /// Ends an in-place edit: an edit onto a text a present element has goes back silently.
    /// Connected to the item delegate; hosts need not call it.
    /// @param editor the editor widget closing.
    /// @param hint the delegate's hint, not used.
    void ListWidgetEditEnd(QWidget *editor, QAbstractItemDelegate::EndEditHint hint);
    /// Remembers the text under edit when the user opens an item. Connected by the list.
    /// @param item the item opened; the current item is read.
    void doubleClicked(QListWidgetItem *item);
    /// Stores an in-place edit. Connected to the item delegate; hosts need not call it.
    /// @param editor the editor widget whose text is committed.
    void ListWidgetEditCommit(QWidget *editor);
    /// @copydoc CfgCheckBox::setHidden
    void setHidden(bool hidden);

private:
    bool removeInternal(const QList<QListWidgetItem *> &items, int ref);
    QByteArray convertData(const QByteArray &data, int mode);
    ElementContext context(int ref);
    void addNew(const QVariant &value, int ref);
    void restore(const QVariant &value, int ref, int index);

    /// The binding and the editing state, behind a pointer so that they can change
    /// within 1.x without changing the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
