// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

// The stock item painting with the corner cue of an invalid or modified element over it.
class StateCueDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit StateCueDelegate(QObject *parent = nullptr) : QStyledItemDelegate(parent) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

// Makes the view's text readable on the light backgrounds its elements are painted in,
// whatever the palette: black while enabled, a grey that reads on every state's background
// while disabled; an editor opened over an element stands on white as in the value controls.
void makeElementTextReadable(QAbstractItemView *view);
