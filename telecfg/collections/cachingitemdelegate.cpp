// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cachingitemdelegate_p.h"
#include "telecfg/collections/elementstate_p.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <iterator>

namespace {
// Rows kept: as many bytes as two viewports' worth of pixels, so a repaint after a scroll
// by a screen still finds its rows, and memory stays in proportion to what is shown.
constexpr int viewportsKept = 2;

// The viewport's background when the kept pixmaps can stand on it: an opaque solid brush
// that the viewport fills itself with. A no-brush otherwise.
QBrush viewportBackground(const QWidget *widget)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    if (!view || !view->viewport()->autoFillBackground())
        return QBrush();
    const QWidget *viewport = view->viewport();
    const QBrush brush = viewport->palette().brush(viewport->backgroundRole());
    if (brush.style() != Qt::SolidPattern || brush.color().alpha() != 255)
        return QBrush();
    return brush;
}

bool isKeepable(const QStyleOptionViewItem &item, const QPainter *painter)
{
    const Qt::BrushStyle background = item.backgroundBrush.style();
    const QTransform &transform = painter->deviceTransform();
    return !(item.state & (QStyle::State_Selected | QStyle::State_HasFocus)) &&
           !(item.features &
             (QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator)) &&
           item.icon.isNull() && (background == Qt::NoBrush || background == Qt::SolidPattern) &&
           item.rect.isValid() && transform.type() <= QTransform::TxTranslate &&
           qFuzzyIsNull(transform.dx() - qRound(transform.dx())) &&
           qFuzzyIsNull(transform.dy() - qRound(transform.dy()));
}

// Empties the store when the view's look changes as a whole.
class Invalidator : public QObject
{
public:
    Invalidator(QCache<CachingItemDelegate::Look, QPixmap> &pixmaps, QObject *parent)
        : QObject(parent), pixmaps(pixmaps)
    {
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::StyleChange:
        case QEvent::PaletteChange:
        case QEvent::FontChange:
        case QEvent::LayoutDirectionChange:
        case QEvent::LocaleChange:
            pixmaps.clear();
            break;
        default:
            break;
        }
        return false;
    }

private:
    QCache<CachingItemDelegate::Look, QPixmap> &pixmaps;
};
} // namespace

CachingItemDelegate::CachingItemDelegate(QAbstractItemView *view)
    : StateCueDelegate(view), pixmaps(0)
{
    auto *invalidator = new Invalidator(pixmaps, this);
    view->installEventFilter(invalidator);
    view->viewport()->installEventFilter(invalidator);
}

void CachingItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QBrush base = viewportBackground(item.widget);
    if (base.style() == Qt::NoBrush || !isKeepable(item, painter)) {
        StateCueDelegate::paint(painter, option, index);
        return;
    }
    Look look;
    look.text = item.text;
    look.font = item.font;
    look.hasBackground = item.backgroundBrush.style() != Qt::NoBrush;
    look.background = look.hasBackground ? item.backgroundBrush.color().rgba() : 0;
    look.base = base.color().rgba();
    look.state = int(item.state);
    look.features = int(item.features);
    look.alignment = int(item.displayAlignment);
    look.elideMode = int(item.textElideMode);
    look.direction = int(item.direction);
    look.position = int(item.viewItemPosition);
    look.showDecorationSelected = item.showDecorationSelected;
    look.size = item.rect.size();
    look.pixelRatio = painter->device()->devicePixelRatioF();
    look.paletteKey = item.palette.cacheKey();
    look.style = item.widget->style();
    look.cue = index.data(StateCueRole).toInt();

    if (const QPixmap *kept = pixmaps.object(look)) {
        painter->drawPixmap(option.rect.topLeft(), *kept);
        return;
    }
    auto *pixmap = new QPixmap(look.size * look.pixelRatio);
    pixmap->setDevicePixelRatio(look.pixelRatio);
    pixmap->fill(base.color());
    {
        QPainter render(pixmap);
        QStyleOptionViewItem local = option;
        local.rect = QRect(QPoint(0, 0), look.size);
        StateCueDelegate::paint(&render, local, index);
    }
    painter->drawPixmap(option.rect.topLeft(), *pixmap);
    const QSize shown = item.widget->size() * look.pixelRatio;
    pixmaps.setMaxCost(qMax(pixmaps.maxCost(), viewportsKept * shown.width() * shown.height() * 4));
    pixmaps.insert(look, pixmap, qMax(1, pixmap->width() * pixmap->height() * 4));
}

bool CachingItemDelegate::Look::operator==(const Look &other) const
{
    return text == other.text && font == other.font && hasBackground == other.hasBackground &&
           background == other.background && base == other.base && state == other.state &&
           features == other.features && alignment == other.alignment &&
           elideMode == other.elideMode && direction == other.direction &&
           position == other.position && showDecorationSelected == other.showDecorationSelected &&
           size == other.size && qFuzzyCompare(pixelRatio, other.pixelRatio) &&
           paletteKey == other.paletteKey && style == other.style && cue == other.cue;
}

qtcompat::HashValue qHash(const CachingItemDelegate::Look &look, qtcompat::HashValue seed)
{
    const qtcompat::HashValue parts[] = {qHash(look.text, seed),    qHash(look.background),
                                         qHash(look.state),         qHash(look.size.width()),
                                         qHash(look.size.height()), qHash(look.paletteKey)};
    return qHashRange(std::begin(parts), std::end(parts), seed);
}
