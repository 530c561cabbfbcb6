// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/parametermodel.h"
#include "telecfg/collections/elementstate_p.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/controls/visibility.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/valuetext_p.h"

#include <QHash>
#include <QVector>

struct ParameterModel::Private
{
    FormState *state = nullptr;
    int hardwareId = 0;
    QList<int> refs;
    QHash<int, int> rows;
    // Built when first asked for, dropped when the table is loaded again: the texts a search
    // looks through do not change with the values.
    mutable QVector<QString> searchTexts;

    MainConfigIFace &table() const { return *state->table(); }

    void take()
    {
        refs = state->parameters();
        rows.clear();
        rows.reserve(refs.size());
        for (int row = 0; row < refs.size(); ++row)
            rows.insert(refs[row], row);
        searchTexts.clear();
    }

    QVariant stored(int ref) const
    {
        if (ParameterTable *ready = state->parameterTable())
            return ready->storedValue(ref);
        return QVariant();
    }

    bool shown(int ref) const
    {
        return hiddenReason(table(), ref, hardwareId) == HiddenReason::Shown;
    }

    const QString &searchText(int row) const
    {
        if (searchTexts.isEmpty()) {
            searchTexts.resize(refs.size());
            for (int i = 0; i < refs.size(); ++i) {
                const int ref = refs[i];
                const MainConfigObject &record = table().object(ref);
                QStringList parts{QString::number(ref), valuetext::name(table(), ref),
                                  record.toolTip};
                for (const auto &option : record.options)
                    parts.append(option.first);
                searchTexts[i] = parts.join(QLatin1Char('\n')).toLower();
            }
        }
        return searchTexts[row];
    }
};

ParameterModel::ParameterModel(FormState *state, QObject *parent)
    : QAbstractTableModel(parent), d(std::make_unique<Private>())
{
    d->state = state;
    d->take();
    connect(state, &FormState::parameterChanged, this, [this](int ref) {
        const int row = d->rows.value(ref, -1);
        if (row >= 0)
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    });
    connect(state, &FormState::reloaded, this, [this] {
        beginResetModel();
        d->take();
        endResetModel();
    });
}

ParameterModel::~ParameterModel() = default;

FormState *ParameterModel::state() const
{
    return d->state;
}

void ParameterModel::setHardwareId(int hardwareId)
{
    if (hardwareId == d->hardwareId)
        return;
    d->hardwareId = hardwareId;
    if (!d->refs.isEmpty())
        emit dataChanged(index(0, 0), index(d->refs.size() - 1, ColumnCount - 1),
                         {ShownRole, HiddenReasonRole, Qt::DisplayRole});
}

int ParameterModel::hardwareId() const
{
    return d->hardwareId;
}

int ParameterModel::rowOf(int ref) const
{
    return d->rows.value(ref, -1);
}

int ParameterModel::parameterAt(int row) const
{
    return row >= 0 && row < d->refs.size() ? d->refs[row] : 0;
}

int ParameterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(d->refs.size());
}

int ParameterModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ParameterModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const int ref = d->refs[index.row()];
    MainConfigIFace &table = d->table();
    switch (role) {
    case ParameterRole:
        return ref;
    case ModifiedRole:
        return table.isModified(ref);
    case InvalidRole:
        return !table.isValid(ref);
    case ShownRole:
        return d->shown(ref);
    case HiddenReasonRole:
        return d->shown(ref) ? QString() : FormBinder::explainHidden(table, ref, d->hardwareId);
    case PageRole:
        if (ParameterTable *ready = d->state->parameterTable())
            return ready->presentation(ref).page;
        return QString();
    case SearchTextRole:
        return d->searchText(index.row());
    case Qt::ToolTipRole:
        return table.object(ref).toolTip;
    case Qt::BackgroundRole:
    case StateCueRole: {
        // The value is painted as on its page: red when invalid, else yellow when modified,
        // with the corner cue that tells the same without colour.
        if (index.column() != ValueColumn)
            return QVariant();
        const bool invalid = !table.isValid(ref);
        if (!invalid && !table.isModified(ref))
            return QVariant();
        if (role == StateCueRole)
            return int(invalid ? statecue::State::Invalid : statecue::State::Modified);
        return BackgroundSheets::background(invalid ? BackgroundSheets::Red
                                                    : BackgroundSheets::Yellow);
    }
    case Qt::AccessibleDescriptionRole:
        return index.siblingAtColumn(StateColumn).data();
    case Qt::EditRole:
        if (index.column() == ValueColumn)
            return table.value(ref);
        break;
    case Qt::DisplayRole:
        break;
    default:
        return QVariant();
    }
    switch (index.column()) {
    case NumberColumn:
        return ref;
    case NameColumn:
        return valuetext::name(table, ref);
    case ValueColumn:
        return valuetext::text(table, ref, table.value(ref));
    case StoredColumn: {
        const QVariant stored = d->stored(ref);
        return stored.isValid() ? valuetext::text(table, ref, stored) : QString();
    }
    case StateColumn: {
        QStringList words;
        if (!table.isValid(ref))
            words.append(tr("Nieprawidłowy"));
        if (table.isModified(ref))
            words.append(tr("Zmieniony"));
        if (!d->shown(ref))
            words.append(tr("Ukryty"));
        return words.join(QStringLiteral(", "));
    }
    }
    return QVariant();
}

QVariant ParameterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NumberColumn:
        return tr("Numer");
    case NameColumn:
        return tr("Nazwa");
    case ValueColumn:
        return tr("Wartość");
    case StoredColumn:
        return tr("Zapisana wartość");
    case StateColumn:
        return tr("Stan");
    }
    return QVariant();
}

Qt::ItemFlags ParameterModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == ValueColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool ParameterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || index.column() != ValueColumn ||
        !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    d->table().setValue(d->refs[index.row()], value);
    return true;
}
