// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/parameterfilter.h"
#include "telecfg/form/parametermodel.h"

ParameterFilter::ParameterFilter(QObject *parent) : QSortFilterProxyModel(parent)
{
    setSortRole(Qt::DisplayRole);
    // A value change re-checks its row only: the model tells dataChanged of one row.
    setDynamicSortFilter(true);
}

void ParameterFilter::setSearchText(const QString &searchText)
{
    if (searchText == text)
        return;
    text = searchText;
    words = searchText.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    changed();
}

void ParameterFilter::setChangedOnly(bool on)
{
    if (on == changedOnly)
        return;
    changedOnly = on;
    changed();
}

void ParameterFilter::setShownOnly(bool on)
{
    if (on == shownOnly)
        return;
    shownOnly = on;
    changed();
}

void ParameterFilter::setInvalidOnly(bool on)
{
    if (on == invalidOnly)
        return;
    invalidOnly = on;
    changed();
}

void ParameterFilter::setPage(const QString &page)
{
    if (page == pageName)
        return;
    pageName = page;
    changed();
}

void ParameterFilter::changed()
{
    invalidateFilter();
}

bool ParameterFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    using Role = ParameterModel::Role;
    if (changedOnly && !index.data(Role::ModifiedRole).toBool())
        return false;
    if (invalidOnly && !index.data(Role::InvalidRole).toBool())
        return false;
    if (shownOnly && !index.data(Role::ShownRole).toBool())
        return false;
    if (!pageName.isEmpty() && index.data(Role::PageRole).toString() != pageName)
        return false;
    if (words.isEmpty())
        return true;
    const QString haystack = index.data(Role::SearchTextRole).toString();
    for (const QString &word : words)
        if (!haystack.contains(word))
            return false;
    return true;
}
