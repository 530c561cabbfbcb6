// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/parameterbrowser.h"
#include "telecfg/collections/statecuedelegate_p.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/parameterdelegate_p.h"
#include "telecfg/form/parameterfilter.h"
#include "telecfg/form/parametermodel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

struct ParameterBrowser::Private
{
    ParameterModel *model = nullptr;
    ParameterFilter *filter = nullptr;
    QTableView *view = nullptr;
    QLineEdit *search = nullptr;
    QTimer typing;
};

ParameterBrowser::ParameterBrowser(FormState *state, QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    d->model = new ParameterModel(state, this);
    d->filter = new ParameterFilter(this);
    d->filter->setSourceModel(d->model);

    d->search = new QLineEdit(this);
    d->search->setPlaceholderText(tr("Szukaj: numer, nazwa, opis, opcja"));
    d->search->setAccessibleName(tr("Szukaj parametru"));
    d->search->setClearButtonEnabled(true);
    // Typing is taken as a search once the user pauses, not at every key.
    d->typing.setSingleShot(true);
    d->typing.setInterval(150);
    connect(d->search, &QLineEdit::textChanged, &d->typing, qOverload<>(&QTimer::start));
    connect(&d->typing, &QTimer::timeout, this,
            [this] { d->filter->setSearchText(d->search->text()); });

    auto *toggles = new QHBoxLayout;
    const QList<QPair<QString, void (ParameterFilter::*)(bool)>> filters = {
        {tr("Tylko zmienione"), &ParameterFilter::setChangedOnly},
        {tr("Tylko widoczne dla urządzenia"), &ParameterFilter::setShownOnly},
        {tr("Tylko nieprawidłowe"), &ParameterFilter::setInvalidOnly},
    };
    for (const auto &[text, set] : filters) {
        auto *box = new QCheckBox(text, this);
        connect(box, &QCheckBox::toggled, d->filter, set);
        toggles->addWidget(box);
    }
    if (ParameterTable *ready = state->parameterTable(); ready && !ready->pages.isEmpty()) {
        auto *pages = new QComboBox(this);
        pages->setAccessibleName(tr("Strona"));
        pages->addItem(tr("Wszystkie strony"), QString());
        for (const QString &page : std::as_const(ready->pages))
            pages->addItem(page, page);
        connect(
            pages, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, pages](int index) { d->filter->setPage(pages->itemData(index).toString()); });
        toggles->addWidget(pages);
    }
    toggles->addStretch();

    d->view = new QTableView(this);
    d->view->setModel(d->filter);
    d->view->setItemDelegate(new ParameterDelegate(d->model, d->view));
    d->view->setAccessibleName(tr("Parametry"));
    d->view->setSortingEnabled(true);
    d->view->sortByColumn(ParameterModel::NumberColumn, Qt::AscendingOrder);
    d->view->setSelectionBehavior(QAbstractItemView::SelectRows);
    d->view->setSelectionMode(QAbstractItemView::SingleSelection);
    d->view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    d->view->verticalHeader()->hide();
    // Widths from the font, not from the rows: measuring ten thousand rows costs a frame.
    QHeaderView *header = d->view->horizontalHeader();
    const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    header->resizeSection(ParameterModel::NumberColumn, 5 * em);
    header->resizeSection(ParameterModel::ValueColumn, 12 * em);
    header->resizeSection(ParameterModel::StoredColumn, 12 * em);
    header->resizeSection(ParameterModel::StateColumn, 10 * em);
    header->setSectionResizeMode(ParameterModel::NameColumn, QHeaderView::Stretch);
    makeElementTextReadable(d->view);
    d->view->installEventFilter(this);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(d->search);
    layout->addLayout(toggles);
    layout->addWidget(d->view);
    setFocusProxy(d->search);
}

ParameterBrowser::~ParameterBrowser() = default;

void ParameterBrowser::setHardwareId(int hardwareId)
{
    d->model->setHardwareId(hardwareId);
}

ParameterModel *ParameterBrowser::model() const
{
    return d->model;
}

ParameterFilter *ParameterBrowser::filter() const
{
    return d->filter;
}

QTableView *ParameterBrowser::view() const
{
    return d->view;
}

QLineEdit *ParameterBrowser::searchField() const
{
    return d->search;
}

bool ParameterBrowser::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->view && event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        const QModelIndex current = d->view->currentIndex();
        const QModelIndex value = current.siblingAtColumn(ParameterModel::ValueColumn);
        // An editor's own Return reaches the view too once the editor has taken it.
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) && value.isValid() &&
            !d->view->indexWidget(value)) {
            d->view->edit(value);
            return true;
        }
        // Letters and digits typed in the view go on the search.
        const QString text = key->text();
        if (!text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace() &&
            !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            d->search->setFocus();
            d->search->insert(text);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
