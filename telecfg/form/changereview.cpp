// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/changereview.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/form/valuetext_p.h"
#include "ui_changereview.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStandardItemModel>

namespace {
// One changed parameter as the user reads it; the review's rows and the question's lines.
struct Change
{
    int ref = 0;
    QString name;
    QString stored;
    QString current;
    // A collection's elements, one per line; empty for other values.
    QString storedElements;
    QString currentElements;
};

QList<Change> changesOf(MainConfigIFace &table, const QList<int> &refs,
                        const std::function<QVariant(int)> &storedValue)
{
    QList<Change> changes;
    for (int ref : refs) {
        const QVariant stored = storedValue ? storedValue(ref) : QVariant();
        const QVariant current = table.value(ref);
        const QChar line(QLatin1Char('\n'));
        changes.append({ref, valuetext::name(table, ref), valuetext::text(table, ref, stored),
                        valuetext::changeText(table, ref, stored, current),
                        valuetext::elementTexts(table, ref, stored).join(line),
                        valuetext::elementTexts(table, ref, current).join(line)});
    }
    return changes;
}

// The most changes the question lists by name; the rest are counted.
constexpr int listedInQuestion = 10;

// The question: true when the window may close.
bool closeAfterQuestion(QWidget *window, ParameterTable &table, const std::function<bool()> &save)
{
    const QList<int> refs = table.modifiedParameters();
    if (refs.isEmpty())
        return true;
    QStringList lines;
    const QList<Change> changes =
        changesOf(table, refs, [&table](int ref) { return table.storedValue(ref); });
    const QList<Change> listed = changes.mid(0, listedInQuestion);
    for (const Change &change : listed)
        lines.append(
            ChangeReview::tr("%1: %2 → %3").arg(change.name, change.stored, change.current));
    if (changes.size() > listedInQuestion)
        lines.append(ChangeReview::tr("…i jeszcze %1").arg(changes.size() - listedInQuestion));
    QMessageBox box(QMessageBox::Warning, ChangeReview::tr("Niezapisane zmiany"),
                    ChangeReview::tr("Zapisać zmiany przed zamknięciem?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, window);
    box.setInformativeText(lines.join(QLatin1Char('\n')));
    box.button(QMessageBox::Save)->setText(ChangeReview::tr("Zapisz"));
    box.button(QMessageBox::Discard)->setText(ChangeReview::tr("Odrzuć zmiany"));
    box.button(QMessageBox::Cancel)->setText(ChangeReview::tr("Anuluj"));
    box.setDefaultButton(QMessageBox::Save);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (box.exec()) {
    case QMessageBox::Save:
        return save && save();
    case QMessageBox::Discard:
        table.revert();
        return true;
    default:
        return false;
    }
}

// Watches a window's close events and asks first.
class CloseWatch : public QObject
{
public:
    CloseWatch(QWidget *window, ParameterTable *table, std::function<bool()> save)
        : QObject(window), table(table), save(std::move(save))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Close || watched != parent() ||
            closeAfterQuestion(static_cast<QWidget *>(watched), *table, save))
            return false;
        event->ignore();
        return true;
    }

private:
    ParameterTable *const table;
    const std::function<bool()> save;
};
} // namespace

struct ChangeReview::Private
{
    Ui::ChangeReview ui;
    QStandardItemModel model;
    // Set only over a ParameterTable, which the dialog reverts.
    ParameterTable *own = nullptr;

    QList<int> refs(Qt::CheckState state) const
    {
        QList<int> found;
        for (int row = 0; row < model.rowCount(); ++row)
            if (model.item(row)->checkState() == state)
                found.append(model.item(row)->data(Qt::UserRole).toInt());
        return found;
    }
};

ChangeReview::ChangeReview(ParameterTable *table, QWidget *parent)
    : ChangeReview(
          table, table->modifiedParameters(), [table](int ref) { return table->storedValue(ref); },
          parent)
{
    d->own = table;
}

ChangeReview::ChangeReview(MainConfigIFace *table, const QList<int> &changed,
                           std::function<QVariant(int)> storedValue, QWidget *parent)
    : QDialog(parent), d(std::make_unique<Private>())
{
    Ui::ChangeReview &ui = d->ui;
    ui.setupUi(this);
    ui.buttonBox->button(QDialogButtonBox::Ok)->setText(tr("Zatwierdź"));
    ui.buttonBox->button(QDialogButtonBox::Cancel)->setText(tr("Anuluj"));
    d->model.setHorizontalHeaderLabels(
        {tr("Parametr"), tr("Zapisana wartość"), tr("Nowa wartość")});
    const QList<Change> changes = changesOf(*table, changed, storedValue);
    for (const Change &change : changes) {
        auto *name = new QStandardItem(change.name);
        name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        name->setCheckState(Qt::Checked);
        name->setData(change.ref, Qt::UserRole);
        QList<QStandardItem *> row{name};
        for (const auto &[text, elements] : {std::pair(change.stored, change.storedElements),
                                             std::pair(change.current, change.currentElements)}) {
            auto *value = new QStandardItem(text);
            value->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            value->setToolTip(elements);
            row.append(value);
        }
        d->model.appendRow(row);
    }
    ui.changes->setModel(&d->model);
    ui.changes->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui.changes->header()->setStretchLastSection(true);
    // Wide enough for every value where the screen allows, so that no summary is cut off.
    int wanted = 2 * ui.changes->frameWidth() + ui.changes->verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < d->model.columnCount(); ++column)
        wanted += qMax(ui.changes->header()->sectionSizeHint(column),
                       static_cast<QAbstractItemView *>(ui.changes)->sizeHintForColumn(column));
    const int extra = width() - ui.changes->width();
    const QScreen *screen = this->screen();
    const int room = screen ? screen->availableGeometry().width() * 9 / 10 : wanted + extra;
    resize(qMax(width(), qMin(wanted + extra, room)), height());
    ui.changes->installEventFilter(this);
    ui.changes->setFocus();
    if (d->model.rowCount() > 0)
        ui.changes->setCurrentIndex(d->model.index(0, 0));
    auto summarise = [this] {
        d->ui.summary->setText(tr("Zmienione parametry: %1, wybrane: %2")
                                   .arg(d->model.rowCount())
                                   .arg(d->refs(Qt::Checked).size()));
    };
    connect(&d->model, &QStandardItemModel::itemChanged, this,
            [this, summarise](QStandardItem *item) {
                if (item->column() != 0)
                    return;
                // A left-out change is struck through as well, which reads in any palette.
                QStandardItem *current = d->model.item(item->row(), 2);
                QFont font = current->font();
                font.setStrikeOut(item->checkState() != Qt::Checked);
                current->setFont(font);
                summarise();
            });
    summarise();
}

ChangeReview::~ChangeReview() = default;

QList<int> ChangeReview::chosen() const
{
    return d->refs(Qt::Checked);
}

QList<int> ChangeReview::leftOut() const
{
    return d->refs(Qt::Unchecked);
}

void ChangeReview::askBeforeClosing(QWidget *window, ParameterTable *table,
                                    std::function<bool()> save)
{
    new CloseWatch(window, table, std::move(save));
}

void ChangeReview::accept()
{
    if (d->own) {
        const QList<int> reverted = leftOut();
        for (int ref : reverted)
            d->own->setValue(ref, d->own->storedValue(ref));
        // Reverting one choice of a radio group reverts the whole group.
        for (int row = 0; row < d->model.rowCount(); ++row) {
            QStandardItem *item = d->model.item(row);
            if (!d->own->isModified(item->data(Qt::UserRole).toInt()))
                item->setCheckState(Qt::Unchecked);
        }
    }
    QDialog::accept();
}

bool ChangeReview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->ui.changes && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        const QModelIndex current = d->ui.changes->currentIndex();
        if (key->key() == Qt::Key_Space && key->modifiers() == Qt::NoModifier &&
            current.isValid()) {
            QStandardItem *item = d->model.item(current.row());
            item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
