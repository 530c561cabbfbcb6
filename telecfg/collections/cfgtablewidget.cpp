// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/criticalbox_p.h"
#include "telecfg/collections/elementstate_p.h"
#include "telecfg/collections/statecuedelegate_p.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/controls/boundcontrol.h"

namespace {
const BoundKind boundKind = BoundKind::of<CfgTableWidget>("telecfg/collections/cfgtablewidget.h");
// Registered when the library loads, so the kinds are known before any control is made.
const BoundKindRegistration registration(boundKind); // clazy:exclude=non-pod-global-static

// Entry `place` of column `column`, or null where the value has no such entry.
QByteArray *entry(ColumnVectors &columns, int column, int place)
{
    if (column < 0 || column >= columns.size() || place < 0 || place >= columns[column].size())
        return nullptr;
    return &columns[column][place];
}

// Texts are Latin-1 in the value; a text ends at its first zero byte.
QString textOf(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes.constData(),
                             int(qstrnlen(bytes.constData(), uint(bytes.size()))));
}

QTableWidgetItem *newCell(const QString &text, quint32 data)
{
    auto *cell = new QTableWidgetItem(text);
    cell->setFlags(cell->flags() | Qt::ItemIsEditable);
    cell->setData(Qt::UserRole, data);
    return cell;
}
} // namespace

struct CfgTableWidget::Private
{
    explicit Private(CfgTableWidget *table) : bound(table, boundKind) {}
    BoundControl bound;
    QString editText;
    int inputModeValue = 0;
};

CfgTableWidget::CfgTableWidget(QWidget *parent)
    : QTableWidget(parent), d(std::make_unique<Private>(this))
{
    registerCollectionTypes();
    setItemDelegate(new StateCueDelegate(this));
    makeElementTextReadable(this);
    connect(itemDelegate(), SIGNAL(closeEditor(QWidget *, QAbstractItemDelegate::EndEditHint)),
            this, SLOT(ListWidgetEditEnd(QWidget *, QAbstractItemDelegate::EndEditHint)));
    connect(this, SIGNAL(itemDoubleClicked(QTableWidgetItem *)), this,
            SLOT(doubleClicked(QTableWidgetItem *)));
}

CfgTableWidget::~CfgTableWidget() = default;

void CfgTableWidget::setReference(MainConfigIFace *iface, int ref, QWidget *label,
                                  QList<QWidget *> relatedWidgets)
{
    clear();
    // A binding shows exactly the new value, also when it has no rows at all.
    setRowCount(0);
    // A table bound to no parameter table shows nothing.
    const auto load = [&] {
        const MainConfigObject object = d->bound.record();
        const int columns = qvariant_cast<QList<uint>>(object.columnListB).size();
        setColumnCount(columns);
        for (int column = 0; column < columns; ++column) {
            const QString title = column < object.columnTitles.size()
                                      ? object.columnTitles.at(column)
                                      : tr("Kolumna %1").arg(column + 1, 0, 10, QLatin1Char(' '));
            setHorizontalHeaderItem(column, new QTableWidgetItem(title));
        }
        const auto values = qvariant_cast<ColumnVectors>(object.value);
        const int filled = qvariant_cast<QList<uint>>(object.columnListA).size();
        const auto capacity = quint32(object.capacity);
        int rows = 0;
        for (int column = 0; column < filled && column < values.size(); ++column) {
            const QVector<QByteArray> &places = values.at(column);
            for (int place = 0; quint32(place) < capacity && place < places.size(); ++place) {
                const QString text = textOf(places.at(place));
                if (column == 0) {
                    if (places.at(place).isEmpty() || text.isEmpty())
                        continue;
                    setRowCount(++rows);
                } else if (place >= rows) {
                    continue;
                }
                // The place is the row as well; a free place before a used one leaves the
                // last used rows past the row count, unshown, as hosts have always seen it.
                placeCell(place, column, newCell(text, quint32(place) | liveFlag));
            }
        }
    };
    d->bound.bind(iface, ref, label, relatedWidgets, load, BoundControl::NullLabel::Keep);
}

void CfgTableWidget::updateControl(int hardwareId)
{
    d->bound.update(hardwareId, [this] {
        d->bound.presentCollection();
        const ElementPainter painter(d->bound.iface, d->bound.reference);
        for (int row = 0; row < rowCount(); ++row) {
            for (int column = 0; column < columnCount(); ++column) {
                QTableWidgetItem *cell = item(row, column);
                // Deliberate: the first missing cell ends the painting of the whole table.
                if (!cell)
                    return;
                painter.paint(cell);
            }
        }
    });
}

void CfgTableWidget::updateEnableState(bool state)
{
    d->bound.updateEnableState(state);
}

void CfgTableWidget::setEnabled(bool bEnable)
{
    d->bound.setEnabled(bEnable);
}

void CfgTableWidget::setError(bool error)
{
    d->bound.error = error;
}

bool CfgTableWidget::isError()
{
    return d->bound.error;
}

int CfgTableWidget::addValue(QVariant value, int ref)
{
    if (!d->bound.iface)
        return 0;
    int index = -1;
    if (isItemExists(value, index))
        return refuseDuplicate();
    const QStringList strings = value.toStringList();
    if (!value.isValid() || strings.isEmpty()) {
        ListWidgetEditEnd(nullptr, QAbstractItemDelegate::NoHint);
        return 0;
    }
    auto columns = qvariant_cast<ColumnVectors>(d->bound.iface->object(ref).value);
    const int rows = rowCount();
    auto fillRow = [&](int row) {
        for (int column = 0; column < strings.size(); ++column) {
            placeCell(row, column, newCell(strings.at(column), quint32(row) | liveFlag));
            if (QByteArray *text = entry(columns, column, row))
                *text = strings.at(column).toLatin1();
        }
    };
    if (index != -1) {
        const QList<QTableWidgetItem *> found = findItems(strings.first(), Qt::MatchExactly);
        const int row = found.isEmpty() ? -1 : found.first()->row();
        if (row >= 0)
            fillRow(row);
    } else {
        const auto capacity = quint32(d->bound.iface->object(ref).capacity);
        for (int place = 0; quint32(place) < capacity; ++place) {
            const QByteArray *identifier = entry(columns, 0, place);
            if (!identifier)
                break;
            // Deliberate: index 1, not the place; while place 1 is empty every add takes
            // place 0, replacing what stands there.
            const QByteArray *second = entry(columns, 0, 1);
            if ((second && second->isEmpty()) || textOf(*identifier).isEmpty()) {
                setRowCount(rows + 1);
                fillRow(place);
                break;
            }
        }
    }
    storeColumns(ref, columns);
    ListWidgetEditEnd(nullptr, QAbstractItemDelegate::NoHint);
    return 0;
}

int CfgTableWidget::addValue(QString value, int ref)
{
    if (!d->bound.iface)
        return 0;
    int index = -1;
    if (isItemExists(value, index))
        return refuseDuplicate();
    auto columns = qvariant_cast<ColumnVectors>(d->bound.iface->object(ref).value);
    const QList<QTableWidgetItem *> items = findItems(value, Qt::MatchExactly);
    if (items.isEmpty() || !items.first())
        return 0;
    QTableWidgetItem *cell = items.first();
    const quint32 data = cell->data(Qt::UserRole).toUInt();
    if (QByteArray *text = entry(columns, cell->column(), cell->row()))
        *text = value.toLatin1();
    // An edit of a grey cell brings that one cell back.
    cell->setData(Qt::UserRole, data | liveFlag);
    storeColumns(ref, columns);
    updateControl(0);
    return 0;
}

void CfgTableWidget::setValue(QVariant value)
{
    d->bound.write(value, BoundControl::Then::Stop);
}

bool CfgTableWidget::remove(int ref)
{
    if (!d->bound.iface)
        return false;
    const QList<QTableWidgetItem *> items = selectedItems();
    auto columns = qvariant_cast<ColumnVectors>(d->bound.iface->object(ref).value);
    // Cells taken away with their row while still waiting in the list.
    QSet<QTableWidgetItem *> gone;
    for (QTableWidgetItem *selected : items) {
        if (gone.contains(selected))
            continue;
        const quint32 data = selected->data(Qt::UserRole).toUInt();
        if (!(data & liveFlag))
            continue;
        const int place = int(data & ~liveFlag);
        const QByteArray *identifier = entry(columns, 0, place);
        // Deliberate: the place is compared with the number of columns; a place at or above
        // it goes at once, without asking the host.
        if (columns.size() >= place + 1 && identifier &&
            d->bound.iface->isStoredItem(ref, QVariant(*identifier))) {
            for (int column = 0; column < columns.size(); ++column) {
                if (QTableWidgetItem *cell = item(place, column)) {
                    cell->setData(Qt::UserRole, uint(place));
                    cell->setData(Qt::BackgroundRole, QBrush(Qt::gray, Qt::SolidPattern));
                    if (column == 0)
                        paintState(cell, ElementState::Removed);
                }
                if (QByteArray *text = entry(columns, column, place))
                    text->clear();
            }
            storeColumns(ref, columns);
        } else {
            for (int column = 0; column < columns.size(); ++column)
                if (QByteArray *text = entry(columns, column, place))
                    text->clear();
            for (int column = 0; column < columnCount(); ++column)
                if (QTableWidgetItem *cell = item(place, column))
                    gone.insert(cell);
            removeRow(place);
        }
        storeColumns(ref, columns);
    }
    return quint32(d->bound.iface->object(ref).capacity) > 0;
}

bool CfgTableWidget::isItemExists(QVariant value, int &index)
{
    const QStringList strings = value.toStringList();
    index = -1;
    if (strings.isEmpty())
        return false;
    return searchItems(findItems(strings.first(), Qt::MatchExactly), strings.first(), -1, index);
}

bool CfgTableWidget::isItemExists(QString value, int &index)
{
    const QList<QTableWidgetItem *> items = findItems(value, Qt::MatchExactly);
    const int exclude = index;
    index = -1;
    // A single hit is the cell just edited.
    if (items.size() < 2)
        return false;
    return searchItems(items, value, exclude, index);
}

void CfgTableWidget::inputMode(int mode)
{
    d->inputModeValue = mode;
}

void CfgTableWidget::ListWidgetEditEnd(QWidget *, QAbstractItemDelegate::EndEditHint)
{
    if (QTableWidgetItem *current = currentItem()) {
        const QString text = current->text();
        int index = -1;
        const QPointer<CfgTableWidget> alive(this);
        if (text.isEmpty()) {
            current->setText(d->editText);
            showCriticalBox(this, tr("Edycja elementu"), tr("Identyfikator nie może być pusty"));
        } else if (isItemExists(text, index)) {
            current->setText(d->editText);
            showCriticalBox(this, tr("Edycja elementu"), tr("Identyfikator jest już używany"));
        } else {
            addValue(text, d->bound.reference);
        }
        if (!alive)
            return; // the host deleted the table while its message was open
    }
    updateControl(0);
}

void CfgTableWidget::doubleClicked(QTableWidgetItem *)
{
    d->editText = currentItem() ? currentItem()->text() : QString();
}

void CfgTableWidget::setHidden(bool hidden)
{
    d->bound.setHidden(hidden);
}

void CfgTableWidget::changed(int value)
{
    QObject *source = sender();
    if (!d->bound.iface || !source)
        return;
    bool rowOk = false;
    bool columnOk = false;
    const int row = source->property("row").toInt(&rowOk);
    const int column = source->property("col").toInt(&columnOk);
    QTableWidgetItem *cell = rowOk && columnOk ? item(row, column) : nullptr;
    if (!cell)
        return;
    auto columns = qvariant_cast<ColumnVectors>(d->bound.record().value);
    // Deliberate: the plain number replaces the place and liveFlag, so the cell paints as
    // removed at the next refresh and remove skips it.
    cell->setData(Qt::UserRole, value);
    QByteArray *text = entry(columns, column, row);
    if (!text)
        return;
    *text = QString::number(value, 10).toLatin1();
    storeColumns(d->bound.reference, columns);
}

int CfgTableWidget::refuseDuplicate()
{
    showCriticalBox(this, tr("Nowy element"), tr("Identyfikator jest już używany"));
    return 1;
}

bool CfgTableWidget::placeCell(int row, int column, QTableWidgetItem *cell)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) {
        delete cell;
        return false;
    }
    setItem(row, column, cell);
    return true;
}

bool CfgTableWidget::searchItems(const QList<QTableWidgetItem *> &items, const QString &text,
                                 int exclude, int &index)
{
    return findPresentElement(items, text, d->editText, exclude, index);
}

void CfgTableWidget::storeColumns(int ref, const ColumnVectors &columns)
{
    // A value that held no columns (or another container) stays as it was.
    if (columns.isEmpty())
        return;
    const QVariant value = QVariant::fromValue(columns);
    d->bound.iface->object(ref).value = value;
    setValue(value);
}
