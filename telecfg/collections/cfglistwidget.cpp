// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cachingitemdelegate_p.h"
#include "telecfg/collections/criticalbox_p.h"
#include "telecfg/collections/elementkind_p.h"
#include "telecfg/collections/elementstate_p.h"
#include "telecfg/collections/listwatch_p.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertraits_p.h"
#include "telecfg/controls/boundcontrol.h"

#include <QLineEdit>
#include <optional>

namespace {
const BoundKind boundKind = BoundKind::of<CfgListWidget>("telecfg/collections/cfglistwidget.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

QListWidgetItem *newItem(const QString &text)
{
    auto *item = new QListWidgetItem(text);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    return item;
}

QVariant placeData(int place, bool live)
{
    return QVariant(live ? uint(place) | liveFlag : uint(place));
}
} // namespace

struct CfgListWidget::Private
{
    explicit Private(CfgListWidget *list) : bound(list, boundKind), watch(list) {}

    BoundControl bound;
    QString editText;
    int inputModeValue = 1;
    // What the last repaint painted from and what changed since, so a repaint after an add
    // does not go through every item.
    ListWatch watch;
    std::optional<ElementPainter> lastPainter;
};

CfgListWidget::CfgListWidget(QWidget *parent)
    : QListWidget(parent), d(std::make_unique<Private>(this))
{
    registerCollectionTypes();
    // Items are single lines of text: the view then lays out an add without measuring
    // every item again.
    setUniformItemSizes(true);
    // Adding an item repaints every visible row; rows that look as before are copied.
    setItemDelegate(new CachingItemDelegate(this));
    makeElementTextReadable(this);
    connect(itemDelegate(), SIGNAL(commitData(QWidget *)), this,
            SLOT(ListWidgetEditCommit(QWidget *)));
    connect(itemDelegate(), SIGNAL(closeEditor(QWidget *, QAbstractItemDelegate::EndEditHint)),
            this, SLOT(ListWidgetEditEnd(QWidget *, QAbstractItemDelegate::EndEditHint)));
    connect(this, SIGNAL(itemDoubleClicked(QListWidgetItem *)), this,
            SLOT(doubleClicked(QListWidgetItem *)));
    // Deliberate: there is no such slot, so this connection fails with the toolkit's warning
    // and a selection change causes nothing. Hosts rely on the list ignoring selection.
    connect(this, SIGNAL(itemSelectionChanged()), this, SLOT(selectionChanged()));
}

CfgListWidget::~CfgListWidget() = default;

void CfgListWidget::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                 QList<QWidget *> relatedWidgets)
{
    clear(); // a list bound to no table shows nothing
    const auto load = [&] {
        const MainConfigObject &object = d->bound.record();
        if (const ElementKind *element = elementKind(object.type)) {
            const auto texts = element->storedTexts(context(ref), object.value);
            for (const auto &placeText : texts) {
                QListWidgetItem *item = newItem(placeText.second);
                item->setData(Qt::UserRole, placeData(placeText.first, true));
                insertItem(count(), item);
            }
        }
    };
    d->bound.bind(iface, ref, label, relatedWidgets, load, BoundControl::NullLabel::Keep);
}

void CfgListWidget::updateControl(int hardwareId)
{
    d->bound.update(hardwareId, [this] {
        d->bound.presentCollection();
        const ElementPainter painter(d->bound.iface, d->bound.reference);
        // Painting an item again in the same state changes nothing; only the items the model
        // reported changed need it, as long as the host's lists and the texts stay as they were.
        const ListWatch::Dirty dirty = d->watch.takeDirty();
        const bool everything =
            dirty.everything || !d->lastPainter || !(*d->lastPainter == painter);
        d->watch.painting = true;
        if (everything) {
            for (int row = 0; row < count(); ++row)
                painter.paint(item(row));
        } else {
            for (int row : dirty.rows)
                if (QListWidgetItem *changed = item(row))
                    painter.paint(changed);
        }
        d->watch.painting = false;
        d->lastPainter = painter;
    });
}

void CfgListWidget::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgListWidget::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgListWidget::setError(bool error)
{
    d->bound.error = error;
}

bool CfgListWidget::isError()
{
    return d->bound.error;
}

int CfgListWidget::addValue(QVariant value, int ref)
{
    if (!d->bound.iface)
        return 0;
    int index = -1;
    if (isItemExists(value, index)) {
        showCriticalBox(this, tr("Nowy element"), tr("Identyfikator jest już używany"));
        return 1;
    }
    if (value.isValid()) {
        if (index != -1)
            restore(value, ref, index);
        else
            addNew(value, ref);
    }
    ListWidgetEditEnd(nullptr, QAbstractItemDelegate::NoHint);
    return 0;
}

void CfgListWidget::setValue(int index, QVariant value)
{
    if (!d->bound.iface)
        return;
    const MainConfigObject &object = d->bound.record();
    const ElementKind *element = elementKind(object.type);
    if (!element)
        return;
    QVariant vector = object.value;
    if (element->storeVariant(vector, index, value))
        d->bound.write(vector, BoundControl::Then::Stop);
}

bool CfgListWidget::remove(int ref)
{
    return removeInternal(selectedItems(), ref);
}

bool CfgListWidget::removeAll(int ref)
{
    QList<QListWidgetItem *> items;
    for (int row = 0; row < count(); ++row)
        items.append(item(row));
    return removeInternal(items, ref);
}

bool CfgListWidget::isItemExists(QVariant value, int &index)
{
    const QString text = value.toString();
    index = -1;
    if (!d->watch.mayShow(text))
        return false; // what findItems would tell, without going through every item
    return findPresentElement(findItems(text, Qt::MatchExactly), text, d->editText, -1, index);
}

void CfgListWidget::inputMode(int mode)
{
    d->inputModeValue = mode;
}

void CfgListWidget::ListWidgetEditEnd(QWidget *editor, QAbstractItemDelegate::EndEditHint)
{
    if (currentItem() && editor && d->bound.iface) {
        const bool textElement = ParameterTraits::of(d->bound.record().type).textElement();
        const QString text = currentItem()->text();
        const QVariant value = textElement ? QVariant(text) : QVariant(text.toUInt(nullptr, 10));
        const QPointer<CfgListWidget> alive(this);
        addValue(value, d->bound.reference);
        if (!alive)
            return; // the host deleted the list while its message was open
    }
    updateControl(0);
}

void CfgListWidget::doubleClicked(QListWidgetItem *)
{
    d->editText = currentItem() ? currentItem()->text() : QString();
}

void CfgListWidget::ListWidgetEditCommit(QWidget *editor)
{
    auto *lineEdit = qobject_cast<QLineEdit *>(editor);
    if (!lineEdit)
        return;
    int index = -1;
    // A present element finds itself here unless the text is back at editText: an edit
    // onto a present text goes back, silently.
    if (isItemExists(QVariant(lineEdit->text()), index) && currentItem())
        currentItem()->setText(d->editText);
}

void CfgListWidget::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

bool CfgListWidget::removeInternal(const QList<QListWidgetItem *> &items, int ref)
{
    if (items.isEmpty())
        return true;
    if (!d->bound.iface)
        return false;
    QVariant vector = d->bound.iface->value(ref);
    for (QListWidgetItem *item : items) {
        const int place = int(item->data(Qt::UserRole).toUInt() & ~liveFlag);
        const int type = d->bound.iface->object(ref).type;
        const ElementKind &kind = removalKind(type);
        const QVariant element = kind.elementAt(vector, place);
        bool kept = false;
        if (element.isValid() && d->bound.iface->isStoredItem(ref, element)) {
            kept = true;
            item->setData(Qt::UserRole, placeData(place, false));
            paintState(item, ElementState::Removed);
            kind.zeroPlace(vector, place);
            d->bound.iface->object(ref).value = vector;
        }
        // An item removed before holds its bare place and stays.
        if (!kept && item->data(Qt::UserRole).toInt() != place)
            delete takeItem(row(item));
        if (const ElementKind *own = elementKind(type))
            setValue(place, own->cleared(vector));
        // Go on from what the host now holds, so no later item writes back a cleared one.
        vector = d->bound.iface->value(ref);
    }
    int live = 0;
    for (int row = 0; row < count(); ++row)
        if (item(row)->data(Qt::UserRole).toUInt() & liveFlag)
            ++live;
    updateControl(0);
    return quint32(live) < quint32(d->bound.iface->object(ref).capacity);
}

QByteArray CfgListWidget::convertData(const QByteArray &data, int mode)
{
    return convertElementBytes(data, mode, d->inputModeValue);
}

ElementContext CfgListWidget::context(int ref)
{
    ElementContext context;
    context.iface = d->bound.iface;
    context.valueNames = d->bound.iface->object(ref).valueNames;
    context.convertData = [this](const QByteArray &data, int mode) {
        return convertData(data, mode);
    };
    return context;
}

void CfgListWidget::addNew(const QVariant &value, int ref)
{
    const ElementKind *kind = elementKind(d->bound.iface->object(ref).type);
    if (!kind)
        return;
    const ElementContext elementContext = context(ref);
    const auto capacity = quint32(d->bound.iface->object(ref).capacity);
    QVariant vector = d->bound.iface->value(ref);
    const int place = kind->firstFree(vector, capacity);
    if (place < 0) {
        // Deliberate: a full collection of a type that builds its item first still shows
        // that item, with no place of its own (it reads as a removed place 0). A value that
        // holds no vector at all adds nothing.
        if (kind->buildsItemFirst() && capacity > 0 && kind->placeCount(vector) > 0) {
            QListWidgetItem *item = newItem(kind->newText(elementContext, value));
            insertItem(count(), item);
            setCurrentItem(item, QItemSelectionModel::ClearAndSelect);
        }
        return;
    }
    QListWidgetItem *item = newItem(kind->newText(elementContext, value));
    const QVariant element = kind->storeNew(elementContext, vector, place, value);
    d->bound.iface->object(ref).value = vector;
    item->setData(Qt::UserRole, placeData(place, true));
    setValue(place, element);
    // Painted before it joins the list, so the refresh that ends the add finds it as it should
    // be and the view is not told of a change (which would make it lay out every item again).
    ElementPainter(d->bound.iface, d->bound.reference).paint(item);
    // Appended whichever place it took: list order is not place order.
    insertItem(count(), item);
    setCurrentItem(item, QItemSelectionModel::ClearAndSelect);
}

void CfgListWidget::restore(const QVariant &value, int ref, int index)
{
    const QList<QListWidgetItem *> items = findItems(value.toString(), Qt::MatchExactly);
    if (items.isEmpty())
        return;
    // The first item takes the place found by the search, which with several items of one
    // text is the place of the last of them; the others fold into it.
    if (const ElementKind *kind = elementKind(d->bound.iface->object(ref).type)) {
        QVariant vector = d->bound.iface->value(ref);
        const QVariant element = kind->storeRestored(context(ref), vector, index, value);
        if (element.isValid()) {
            items.first()->setData(Qt::UserRole, placeData(index, true));
            setValue(index, element);
        }
    }
    for (int i = 1; i < items.size(); ++i)
        delete takeItem(row(items.at(i)));
    updateControl(0);
}
