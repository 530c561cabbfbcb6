// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QSortFilterProxyModel>

/// @file
/// Narrowing a ParameterModel down to what the user looks for.

/// A filter over a ParameterModel: a text looked for in the number, name, description and
/// option texts (every word must occur, in any case), and toggles for changed parameters only,
/// parameters shown for the device only, invalid ones only, and one page (group). Sorting by
/// any column keeps the number order among equals.
///
/// The filter applies each change at once; a search field debounces typing itself (the
/// ParameterBrowser does).
class TELECFG_EXPORT ParameterFilter : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    /// A filter that lets every row through.
    /// @param parent the QObject parent; may be null.
    explicit ParameterFilter(QObject *parent = nullptr);

    /// The text looked for.
    /// @param text words separated by blanks; empty lets every row through.
    void setSearchText(const QString &text);
    /// Only parameters that differ from their stored values.
    /// @param on true to narrow.
    void setChangedOnly(bool on);
    /// Only parameters shown for the device (version, hardware id, licence level).
    /// @param on true to narrow.
    void setShownOnly(bool on);
    /// Only parameters whose values break their rules.
    /// @param on true to narrow.
    void setInvalidOnly(bool on);
    /// Only the parameters of one page.
    /// @param page the page's name; empty for every page.
    void setPage(const QString &page);

    /// The text looked for. @return the words as given.
    QString searchText() const { return text; }

protected:
    /// Whether a row passes the search words and the toggles.
    /// @param sourceRow the row in the model.
    /// @param sourceParent its parent (the root).
    /// @return true when the row is shown.
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    void changed();

    QString text;
    QStringList words;
    QString pageName;
    bool changedOnly = false;
    bool shownOnly = false;
    bool invalidOnly = false;
};
