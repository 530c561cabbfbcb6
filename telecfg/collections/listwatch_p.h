// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

class QListWidget;

// Follows a list's model, so that the list need not go through every item after each
// change: which rows may look otherwise than they were last painted, and how many items
// show each text. Everything the model reports counts, whoever made the change; only the
// list's own painting, done while `painting` is set, is no news.
class ListWatch
{
public:
    explicit ListWatch(QListWidget *list);

    // The rows to paint again, all of them when `everything`; the next call starts afresh.
    struct Dirty
    {
        bool everything = true;
        QVector<int> rows;
    };
    Dirty takeDirty();
    void markEverything();

    // False only when no item shows `text`, that is, when findItems would find none.
    bool mayShow(const QString &text);

    bool painting = false;

private:
    void markRows(int first, int last);
    void countTexts(int first, int last, int sign);

    QListWidget *list;
    // The connections to the model live as long as this object, not as the list.
    QObject context;
    Dirty dirty;
    QHash<QString, int> textCounts;
    bool textsKnown = false;
};
