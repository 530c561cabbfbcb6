// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/testhost.h"

#include <QAbstractItemView>
#include <QBrush>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

// Shared by the collection suites: what the host sees of items, and the user's in-place
// edit through the item delegate.
namespace collectiontest {

// Background colour name of an item ("" when none was painted).
template <class Item> QString colourOf(const Item *item)
{
    const QVariant brush = item->data(Qt::BackgroundRole);
    if (!brush.isValid())
        return QString();
    const QBrush b = brush.value<QBrush>();
    return b.style() == Qt::SolidPattern ? b.color().name() : QStringLiteral("pattern");
}

// Double-clicks the cell at `rect` (which opens its editor), types `text`, presses Return
// and waits until the editor has closed.
inline bool editInPlace(QAbstractItemView &view, const QRect &rect, const QString &text)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, rect.center());
    QPointer<QLineEdit> editor = view.viewport()->findChild<QLineEdit *>();
    if (!editor)
        return false;
    editor->setText(text);
    QTest::keyClick(editor, Qt::Key_Return);
    for (int i = 0; i < 100 && editor; ++i)
        QTest::qWait(10);
    return editor.isNull();
}

} // namespace collectiontest
