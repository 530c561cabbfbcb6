// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "tests/collections/collectiontest.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QtTest>

using namespace collectiontest;
using Grid = QStringList;

namespace {
const int ref = 60;

// Columns written as text, one string per column, places joined by '|'.
QVariant table(const QStringList &columns)
{
    ColumnVectors value;
    for (const QString &column : columns) {
        QVector<QByteArray> places;
        for (const QString &place : column.split('|'))
            places << place.toLatin1();
        value << places;
    }

    return QVariant::fromValue(value);
}

// The columns last handed to the host, written as for table() (empty: nothing written).
QVariant written(const TestHost &host)
{
    return host.writes.isEmpty() ? QVariant() : host.writes.last().value;
}

// The grid as the user sees it: one string per row, cells joined by '|', "-" for no cell.
Grid gridOf(const QTableWidget &table)
{
    Grid rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *cell = table.item(row, column);
            cells << (cell ? cell->text() : QStringLiteral("-"));
        }
        rows << cells.join('|');
    }

    return rows;
}

// A table bound to parameter `ref`: `shown` columns, `filled` of them filled from the value.
struct Bound
{
    TestHost host;
    CfgTableWidget table;
    Bound(const QVariant &value, int capacity, const QVariantList &stored = {}, int shown = 2,
          int filled = 2)
    {
        MainConfigObject &object = host.add(ref, 0, value);
        object.columnListA = QVariant::fromValue(QVector<uint>(filled).toList());
        object.columnListB = QVariant::fromValue(QVector<uint>(shown).toList());
        object.capacity = capacity;
        object.columnTitles = QStringList{"Poziom", "Objętość"};
        host.storedItemsOf[ref] = stored;
        table.setSelectionMode(QAbstractItemView::MultiSelection);
        table.setReference(&host, ref, nullptr, {});
    }
};
} // namespace

class TestCfgTableWidget : public TestCase
{
    Q_OBJECT

private slots:
    void binding_data()
    {
        columns<QVariant, int, QString, Grid>("value", "capacity", "titles", "grid");

        const QString two = QStringLiteral("Poziom|Objętość");
        row("two rows", table({"1|2|", "10|20|"}), 3, two, Grid{"1|10", "2|20"});
        row("generated titles", table({"1", "10", "x", "y"}), 1,
            "Poziom|Objętość|Kolumna 3|Kolumna 4", Grid{"1|10|x|y"});
        // Deliberate: a free place before a used one leaves the used row past the row count.
        row("free place first", table({"|2", "|20"}), 2, two, Grid{"-|"});
        // Wrong shapes show what fits, and nothing done on them afterwards crashes.
        // An identifier of zero bytes is a free place, as an empty one.
        row("zero-byte identifier", table({"1|" + QString(2, QChar(0)), "10|x"}), 2, two,
            Grid{"1|10"});
        row("short column", table({"1|2", "10"}), 2, two, Grid{"1|10", "2|-"});
        row("wrong container", QVariant::fromValue(QVector<quint32>{1}), 1, two, Grid{});
        row("capacity 0", table({"1", "10"}), 0, two, Grid{});
    }

    void binding()
    {
        QFETCH(QVariant, value);
        const int columns = qMax(2, qvariant_cast<ColumnVectors>(value).size()); // shown, filled
        auto [capacity, titles, grid] = fetch<int, QString, Grid>("capacity", "titles", "grid");

        Bound b(value, capacity, {QByteArray("1")}, columns, columns);
        b.table.setRowCount(5);
        b.table.setReference(&b.host, ref, nullptr, {}); // the old rows go
        QStringList headers;
        for (int column = 0; column < b.table.columnCount(); ++column)
            headers << b.table.horizontalHeaderItem(column)->text();
        QCOMPARE(headers.join('|'), titles);
        QCOMPARE(gridOf(b.table), grid);

        ModalCatcher catcher;
        b.table.selectAll();
        QCOMPARE(b.table.remove(ref), capacity != 0); // true while there are any places
        b.table.addValue(QVariant(QStringList{"1", "11", "111"}), ref);
        b.table.addValue(QVariant(QStringList{"9"}), ref);
        b.table.updateControl(0);
    }

    void addEditRemove_data()
    {
        columns<QStringList, int, QVariantList>("value", "capacity", "stored");
        // (column, row) edited or removed; (-1, -1): an add; (-1, row): an add while the first
        // cell of that row is current
        // input: "remove" the cell, "remove row" its whole row
        // after: empty: nothing written
        columns<QPoint, QVariant, Grid, QStringList, QString>("cell", "input", "grid", "after",
                                                              "message");

        const QPoint add(-1, -1);
        const QVariantList no;
        const QVariant row3 = QStringList{"3", "30"};
        const QStringList two{"1|2", "10|20"};
        const QStringList three{"1|2|", "10|20|"};
        const Grid same{"1|10", "2|20"};
        row("first free place", three, 3, no, add, row3, Grid{"1|10", "2|20", "3|30"},
            QStringList{"1|2|3", "10|20|30"}, "");
        // Deliberate: while place 1 is empty every add takes place 0.
        row("place 1 empty", QStringList{"1||", "10||"}, 3, no, add, row3, Grid{"3|30", "-|-"},
            QStringList{"3||", "30||"}, "");
        row("full", two, 2, no, add, row3, same, two, "");
        row("duplicate in a later column", three, 3, no, add, QVariant(QStringList{"20", "5"}),
            same, QStringList{}, "Identyfikator jest już używany");
        row("capacity 0", QStringList{"", ""}, 0, no, add, row3, Grid{}, QStringList{"", ""}, "");
        row("invalid", QStringList{"1|", "10|"}, 2, no, add, QVariant(), Grid{"1|10"},
            QStringList{}, "");
        // The edit check that ends every add stores the current cell again.
        row("invalid, a cell current", QStringList{"1|", "10|"}, 2, no, QPoint(-1, 0), QVariant(),
            Grid{"1|10"}, QStringList{"1|", "10|"}, "");
        // Off the diagonal, so a row and column mixed up show.
        row("edit", two, 2, no, QPoint(1, 0), QVariant("15"), Grid{"1|15", "2|20"},
            QStringList{"1|2", "15|20"}, "");
        row("edit, text of another column", two, 2, no, QPoint(1, 0), QVariant("2"), same,
            QStringList{}, "Identyfikator jest już używany");
        row("edit, emptied later column", two, 2, no, QPoint(1, 1), QVariant(""), same,
            QStringList{}, "Identyfikator nie może być pusty");
        const QStringList gone{"|2", "|20"};
        row("remove, stored row greys", two, 2, QVariantList{QByteArray("1")}, QPoint(1, 0),
            QVariant("remove"), same, gone, "");
        // Several cells of one row: the row goes once, its other cells are skipped.
        row("remove row", two, 2, no, QPoint(0, 0), QVariant("remove row"), Grid{"2|20"}, gone, "");
        // Deliberate: a place at or above the column count goes without asking the host.
        row("remove beyond column count", QStringList{"1|2|3", "10|20|30"}, 3,
            QVariantList{QByteArray("3")}, QPoint(0, 2), QVariant("remove"), same,
            QStringList{"1|2|", "10|20|"}, "");
    }

    void addEditRemove()
    {
        auto [value, capacity, stored, cell, input, grid, after, message] =
            fetch<QStringList, int, QVariantList, QPoint, QVariant, Grid, QStringList, QString>(
                "value", "capacity", "stored", "cell", "input", "grid", "after", "message");

        Bound b(table(value), capacity, stored);
        ModalCatcher catcher;
        if (cell.x() < 0) {
            if (cell.y() >= 0)
                b.table.setCurrentCell(cell.y(), 0);
            QCOMPARE(b.table.addValue(input, ref), message.isEmpty() ? 0 : 1);
        } else if (input.toString().startsWith("remove")) {
            b.table.item(cell.y(), cell.x())->setSelected(true);
            if (input == "remove row")
                b.table.item(cell.y(), 1 - cell.x())->setSelected(true);
            QVERIFY(b.table.remove(ref));
        } else {
            b.table.show();
            QVERIFY(QTest::qWaitForWindowExposed(&b.table));
            const QRect rect = b.table.visualItemRect(b.table.item(cell.y(), cell.x()));
            QVERIFY(collectiontest::editInPlace(b.table, rect, input.toString()));
        }
        QCOMPARE(gridOf(b.table), grid);
        QCOMPARE(written(b.host), after.isEmpty() ? QVariant() : table(after));
        QCOMPARE(catcher.seen.size(), message.isEmpty() ? 0 : 1);
        if (!message.isEmpty()) {
            QCOMPARE(catcher.seen.at(0).title, cell.x() < 0 ? "Nowy element" : "Edycja elementu");
            QCOMPARE(catcher.seen.at(0).text, message);
        }
    }

    void greyRow()
    {
        Bound b(table({"1|2", "10|20"}), 2, {QByteArray("1")});
        b.table.item(0, 1)->setSelected(true);
        QVERIFY(b.table.remove(ref));
        QCOMPARE(b.host.writes.size(), 2);
        QCOMPARE(colourOf(b.table.item(0, 1)), QStringLiteral("#a0a0a4"));
        QCOMPARE(b.table.item(0, 0)->toolTip(), QStringLiteral("Usunięty element"));
        QCOMPARE(b.table.item(0, 1)->toolTip(), QString());
        // A grey row is not removed again; adding its identifier brings it back.
        b.host.writes.clear();
        QVERIFY(b.table.remove(ref));
        QVERIFY(b.host.writes.isEmpty());
        QCOMPARE(b.table.addValue(QVariant(QStringList{"1", "11"}), ref), 0);
        QCOMPARE(gridOf(b.table), (Grid{"1|11", "2|20"}));
        QCOMPARE(b.host.writes.last().value, table({"1|2", "11|20"}));
        QCOMPARE(colourOf(b.table.item(0, 1)), QStringLiteral("#ffffff"));

        // Painting stops at the first missing cell and goes on once it is back.
        b.host.invalidItemsOf[ref] = {0};
        b.host.modifiedItemsOf[ref] = {0, 1};
        delete b.table.takeItem(0, 1);
        b.table.updateControl(0);
        QCOMPARE(colourOf(b.table.item(0, 0)), QStringLiteral("#ff0000"));
        QCOMPARE(b.table.item(0, 0)->toolTip(), QStringLiteral("Nieprawidłowy element"));
        QCOMPARE(colourOf(b.table.item(1, 0)), QStringLiteral("#ffffff"));
        b.table.setItem(0, 1, new QTableWidgetItem("x"));
        b.table.updateControl(0);
        QCOMPARE(colourOf(b.table.item(1, 1)), QStringLiteral("#ffff00"));
    }
};

QTEST_MAIN(TestCfgTableWidget)
#include "tst_cfgtablewidget.moc"
