// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/qtcompat_p.h"

#include "telecfg/collections/statecuedelegate_p.h"
#include <QCache>
#include <QFont>
#include <QPixmap>

class QAbstractItemView;

// The stock item painting, kept as rendered pixmaps: an item whose look has not changed
// since it was last drawn is copied instead of being laid out and drawn again. A list that
// grows by one item repaints all its visible rows, and most of them look as before.
//
// A pixmap is the viewport's background with the stock painting over it, which is what the
// screen shows, so only items over an opaque, filled viewport are kept, and only those that
// show text alone on a plain or solid background; every other item, and any painter that
// scales or rotates, is painted as usual. The view's style, palette, font, locale or
// direction changing empties the store.
class CachingItemDelegate : public StateCueDelegate
{
    Q_OBJECT

public:
    explicit CachingItemDelegate(QAbstractItemView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    // How many rendered items are kept.
    int keptCount() const { return pixmaps.count(); }

    // Everything of an item's option its painting depends on.
    struct Look
    {
        QString text;
        QFont font;
        bool hasBackground = false;
        QRgb background = 0; // the item's own solid brush
        QRgb base = 0;       // the viewport's
        int state = 0;
        int features = 0;
        int alignment = 0;
        int elideMode = 0;
        int direction = 0;
        int position = 0;
        bool showDecorationSelected = false;
        QSize size;
        qreal pixelRatio = 1;
        qint64 paletteKey = 0;
        const void *style = nullptr;
        int cue = 0; // the element's corner cue

        bool operator==(const Look &other) const;
    };

private:
    mutable QCache<Look, QPixmap> pixmaps;
};

qtcompat::HashValue qHash(const CachingItemDelegate::Look &look, qtcompat::HashValue seed = 0);
