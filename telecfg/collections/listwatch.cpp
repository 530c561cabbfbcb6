// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/listwatch_p.h"

#include <QListWidget>

namespace {
// Past this many rows a repaint goes through the list anyway.
constexpr int dirtyRowLimit = 64;

bool changesText(const QVector<int> &roles)
{
    return roles.isEmpty() || roles.contains(Qt::DisplayRole) || roles.contains(Qt::EditRole);
}
} // namespace

ListWatch::ListWatch(QListWidget *list) : list(list)
{
    QAbstractItemModel *model = list->model();
    QObject::connect(model, &QAbstractItemModel::rowsInserted, &context,
                     [this](const QModelIndex &, int first, int last) {
                         // Rows inserted before others move them: their marks no longer hold.
                         if (last + 1 < this->list->count())
                             markEverything();
                         else
                             markRows(first, last);
                         countTexts(first, last, 1);
                     });
    QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, &context,
                     [this](const QModelIndex &, int first, int last) {
                         markEverything();
                         countTexts(first, last, -1);
                     });
    QObject::connect(model, &QAbstractItemModel::dataChanged, &context,
                     [this](const QModelIndex &topLeft, const QModelIndex &bottomRight,
                            const QVector<int> &roles) {
                         if (changesText(roles))
                             textsKnown = false;
                         if (!painting)
                             markRows(topLeft.row(), bottomRight.row());
                     });
    auto forget = [this] {
        markEverything();
        textsKnown = false;
    };
    QObject::connect(model, &QAbstractItemModel::modelReset, &context, forget);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, &context, forget);
    QObject::connect(model, &QAbstractItemModel::rowsMoved, &context, forget);
}

ListWatch::Dirty ListWatch::takeDirty()
{
    Dirty taken = dirty;
    dirty = Dirty{false, {}};
    return taken;
}

void ListWatch::markEverything()
{
    dirty.everything = true;
    dirty.rows.clear();
}

void ListWatch::markRows(int first, int last)
{
    if (dirty.everything)
        return;
    if (first < 0 || last - first + dirty.rows.size() >= dirtyRowLimit) {
        markEverything();
        return;
    }
    for (int row = first; row <= last; ++row)
        dirty.rows.append(row);
}

void ListWatch::countTexts(int first, int last, int sign)
{
    if (!textsKnown)
        return;
    for (int row = first; row <= last; ++row) {
        const QListWidgetItem *item = list->item(row);
        if (!item)
            continue;
        int &count = textCounts[item->text()];
        count += sign;
        if (count <= 0)
            textCounts.remove(item->text());
    }
}

bool ListWatch::mayShow(const QString &text)
{
    if (!textsKnown) {
        textCounts.clear();
        for (int row = 0; row < list->count(); ++row)
            ++textCounts[list->item(row)->text()];
        textsKnown = true;
    }
    return textCounts.contains(text);
}
