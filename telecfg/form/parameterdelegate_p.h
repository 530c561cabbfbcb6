// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/collections/statecuedelegate_p.h"

class ParameterModel;

// Internal to the library. Paints a ParameterModel's rows with their corner cues and edits a
// value with the bound control of the parameter's kind, bound to the same table: every rule
// of that control (bounds, step, options, pattern, length) holds, and each edit goes through
// the table as it does on a page. Escape puts back the value the editor opened with. A radio
// choice is edited as a list of its group's choices; a list or table parameter opens its
// editor in a dialog.
class ParameterDelegate : public StateCueDelegate
{
    Q_OBJECT
public:
    explicit ParameterDelegate(ParameterModel *model, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

    // The control kind a parameter is edited with: the table's presentation ("spinbox", ...)
    // where it names one, else what the record's type implies ("lineedit" for texts and
    // numbers, "list" for collections).
    static QString kindOf(ParameterModel *model, int ref);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void editCollection(QWidget *parent, int ref, const QString &kind) const;

    ParameterModel *const model;
};
