// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/elementstate_p.h"
#include "telecfg/collections/statecuedelegate_p.h"
#include "telecfg/controls/statecolours.h"
#include "telecfg/controls/statecue_p.h"

#include <QAbstractItemView>

void makeElementTextReadable(QAbstractItemView *view)
{
    QPalette palette = view->palette();
    const bool dark = stateColours() == StateColours::Dark;
    // The hardest background of the set for a disabled text: red, or the dark set's amber.
    const QColor hardest = dark ? QColor(0x6b, 0x55, 0x00) : QColor(Qt::red);
    const QColor enabled = dark ? QColor(Qt::white) : QColor(Qt::black);
    const QColor disabled = statecue::readableText(hardest, true);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(QPalette::Active, role, enabled);
        palette.setColor(QPalette::Inactive, role, enabled);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Base, dark ? QColor(0x2a, 0x2a, 0x2a) : QColor(Qt::white));
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
