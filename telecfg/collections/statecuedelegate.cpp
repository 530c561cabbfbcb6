// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/elementstate_p.h"
#include "telecfg/collections/statecuedelegate_p.h"
#include "telecfg/controls/statecue_p.h"

#include <QAbstractItemView>

void makeElementTextReadable(QAbstractItemView *view)
{
    QPalette palette = view->palette();
    const QColor disabled = statecue::readableText(Qt::red, true);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(QPalette::Active, role, Qt::black);
        palette.setColor(QPalette::Inactive, role, Qt::black);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Base, Qt::white);
    view->setPalette(palette);
}

void StateCueDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QVariant cue = index.data(StateCueRole);
    if (cue.isValid())
        statecue::paintCue(painter, option.rect, statecue::State(cue.toInt()));
}
