#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "tests/collections/collectiontest.h"
#include "tests/support/modalcatcher.h"

#include <QSpinBox>
#include <QtTest>

using namespace collectiontest;

namespace {
const int ref = 60;

// Columns given as rows of text, one string per place: "a|b" is a column of two places.
ColumnVectors columnsOf(const QStringList &columns)
{
    ColumnVectors value;
    for (const QString &column : columns) {
        QVector<QByteArray> places;
        for (const QString &place : column.split('|'))
            places << place.toLatin1();
        value << places;
    }
    return value;
}

QStringList columnsText(const ColumnVectors &value)
{
    QStringList columns;
    for (const QVector<QByteArray> &column : value) {
        QStringList places;
        for (const QByteArray &place : column)
            places << QString::fromLatin1(place);
        columns << places.join('|');
    }
    return columns;
}

// The grid as the user sees it: one string per row, cells joined by '|', "-" for no cell.
QStringList gridOf(const QTableWidget &table)
{
    QStringList rows;
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

// A table parameter of `shown` columns, `filled` of them filled from the value.
MainConfigObject &addTable(TestHost &host, const QVariant &value, int capacity, int shown = 2,
                           int filled = 2)
{
    MainConfigObject &object = host.add(ref, 0, value);
    object.columnListA = QVariant::fromValue(QVector<uint>(filled).toList());
    object.columnListB = QVariant::fromValue(QVector<uint>(shown).toList());
    object.capacity = capacity;
    object.columnTitles = QStringList{"Poziom", "Objętość"};
    return object;
}

QVariant table(const QStringList &columns)
{
    return QVariant::fromValue(columnsOf(columns));
}
} // namespace

class TestCfgTableWidget : public QObject
{
    Q_OBJECT

private slots:
    void binding_data();
    void binding();
    void addRow_data();
    void addRow();
    void editCheck_data();
    void editCheck();
    void remove_data();
    void remove();
    void cellWidgetChange();
    void paintingStopsAtMissingCell();
};

void TestCfgTableWidget::binding_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("filled");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QStringList>("grid");

    const QStringList two{"Poziom", "Objętość"};
    QTest::newRow("two rows") << table({"1|2|", "10|20|"}) << 2 << 2 << 3 << two
                              << QStringList{"1|10", "2|20"};
    QTest::newRow("generated titles")
        << table({"1", "10", "x", "y"}) << 4 << 4 << 1
        << QStringList{"Poziom", "Objętość", "Kolumna 3", "Kolumna 4"} << QStringList{"1|10|x|y"};
    QTest::newRow("no filled columns") << table({"1", "10"}) << 0 << 2 << 1 << two << QStringList{};
    // A free place before a used one leaves the used row past the row count.
    QTest::newRow("free place first")
        << table({"|2", "|20"}) << 2 << 2 << 2 << two << QStringList{"-|"};
    QTest::newRow("column shorter than capacity")
        << table({"1|2", "10"}) << 2 << 2 << 2 << two << QStringList{"1|10", "2|-"};
    QTest::newRow("fewer columns than filled")
        << table({"1|2"}) << 3 << 2 << 2 << two << QStringList{"1|-", "2|-"};
    QTest::newRow("more filled than shown")
        << table({"1", "10", "x"}) << 3 << 2 << 1 << two << QStringList{"1|10"};
    QTest::newRow("wrong container")
        << QVariant::fromValue(QVector<quint32>{1}) << 2 << 2 << 1 << two << QStringList{};
    QTest::newRow("negative capacity")
        << table({"1|2", "10|20"}) << 2 << 2 << -1 << two << QStringList{"1|10", "2|20"};
}

void TestCfgTableWidget::binding()
{
    QFETCH(QVariant, value);
    QFETCH(int, filled);
    QFETCH(int, columns);
    QFETCH(int, capacity);
    QFETCH(QStringList, titles);
    QFETCH(QStringList, grid);

    TestHost host;
    addTable(host, value, capacity, columns, filled);
    CfgTableWidget tableWidget;
    tableWidget.setRowCount(5);
    tableWidget.setReference(&host, ref, nullptr, {});
    QCOMPARE(tableWidget.columnCount(), titles.size());
    for (int column = 0; column < titles.size(); ++column)
        QCOMPARE(tableWidget.horizontalHeaderItem(column)->text(), titles.at(column));
    QCOMPARE(gridOf(tableWidget), grid);
    QCOMPARE(host.records[ref].control, &tableWidget);
    if (!grid.isEmpty() && tableWidget.item(0, 0))
        QCOMPARE(tableWidget.item(0, 0)->data(Qt::UserRole).toUInt(), liveFlag);
}

void TestCfgTableWidget::addRow_data()
{
    QTest::addColumn<QStringList>("value");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("grid");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QString>("message");

    QTest::newRow("first free place")
        << QStringList{"1|2|", "10|20|"} << 3 << QVariant(QStringList{"3", "30"}) << 0
        << QStringList{"1|10", "2|20", "3|30"} << QStringList{"1|2|3", "10|20|30"} << "";
    // Deliberate: while place 1 is empty every add takes place 0.
    QTest::newRow("place 1 empty replaces place 0")
        << QStringList{"1||", "10||"} << 3 << QVariant(QStringList{"3", "30"}) << 0
        << QStringList{"3|30", "-|-"} << QStringList{"3||", "30||"} << "";
    QTest::newRow("full") << QStringList{"1|2", "10|20"} << 2 << QVariant(QStringList{"3", "30"})
                          << 0 << QStringList{"1|10", "2|20"} << QStringList{"1|2", "10|20"} << "";
    QTest::newRow("duplicate in a later column")
        << QStringList{"1|2|", "10|20|"} << 3 << QVariant(QStringList{"20", "5"}) << 1
        << QStringList{"1|10", "2|20"} << QStringList{} << "Nowy element";
    QTest::newRow("more strings than columns")
        << QStringList{"1|2|", "10|20|"} << 3 << QVariant(QStringList{"3", "30", "300"}) << 0
        << QStringList{"1|10", "2|20", "3|30"} << QStringList{"1|2|3", "10|20|30"} << "";
    QTest::newRow("capacity 1, no place 1")
        << QStringList{"", ""} << 1 << QVariant(QStringList{"3", "30"}) << 0 << QStringList{"3|30"}
        << QStringList{"3", "30"} << "";
    QTest::newRow("capacity above the column")
        << QStringList{"1", "10"} << 5 << QVariant(QStringList{"3", "30"}) << 0
        << QStringList{"1|10"} << QStringList{"1", "10"} << "";
    QTest::newRow("capacity 0") << QStringList{"", ""} << 0 << QVariant(QStringList{"3", "30"}) << 0
                                << QStringList{} << QStringList{"", ""} << "";
    QTest::newRow("empty list") << QStringList{"1|", "10|"} << 2 << QVariant(QStringList{}) << 0
                                << QStringList{"1|10"} << QStringList{} << "";
    QTest::newRow("invalid") << QStringList{"1|", "10|"} << 2 << QVariant() << 0
                             << QStringList{"1|10"} << QStringList{} << "";
}

void TestCfgTableWidget::addRow()
{
    QFETCH(QStringList, value);
    QFETCH(int, capacity);
    QFETCH(QVariant, input);
    QFETCH(int, result);
    QFETCH(QStringList, grid);
    QFETCH(QStringList, after);
    QFETCH(QString, message);

    TestHost host;
    addTable(host, table(value), capacity);
    CfgTableWidget tableWidget;
    tableWidget.setReference(&host, ref, nullptr, {});
    ModalCatcher catcher;
    QCOMPARE(tableWidget.addValue(input, ref), result);
    QCOMPARE(gridOf(tableWidget), grid);
    if (after.isEmpty())
        QVERIFY(host.writes.isEmpty());
    else
        QCOMPARE(columnsText(lastWrite<ColumnVectors>(host, ref)), after);
    QCOMPARE(catcher.seen.isEmpty(), message.isEmpty());
    if (!message.isEmpty()) {
        QCOMPARE(catcher.seen.at(0).title, message);
        QCOMPARE(catcher.seen.at(0).text, QStringLiteral("Identyfikator jest już używany"));
    }
}

void TestCfgTableWidget::editCheck_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("grid");
    QTest::addColumn<QStringList>("after"); // empty: nothing written
    QTest::addColumn<QString>("message");

    QTest::newRow("new text") << 1 << 1 << "25" << QStringList{"1|10", "2|25"}
                              << QStringList{"1|2", "10|25"} << "";
    QTest::newRow("unchanged text stores again")
        << 0 << 0 << "1" << QStringList{"1|10", "2|20"} << QStringList{"1|2", "10|20"} << "";
    QTest::newRow("text of another column") << 0 << 1 << "2" << QStringList{"1|10", "2|20"}
                                            << QStringList{} << "Identyfikator jest już używany";
    QTest::newRow("emptied later column") << 1 << 1 << "" << QStringList{"1|10", "2|20"}
                                          << QStringList{} << "Identyfikator nie może być pusty";
}

void TestCfgTableWidget::editCheck()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, typed);
    QFETCH(QStringList, grid);
    QFETCH(QStringList, after);
    QFETCH(QString, message);

    TestHost host;
    addTable(host, table({"1|2", "10|20"}), 2);
    CfgTableWidget tableWidget;
    tableWidget.setReference(&host, ref, nullptr, {});
    tableWidget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tableWidget));
    ModalCatcher catcher;
    const QRect rect = tableWidget.visualItemRect(tableWidget.item(row, column));
    QVERIFY(collectiontest::editInPlace(tableWidget, rect, typed));
    QCOMPARE(gridOf(tableWidget), grid);
    if (after.isEmpty())
        QVERIFY(host.writes.isEmpty());
    else
        QCOMPARE(columnsText(lastWrite<ColumnVectors>(host, ref)), after);
    QCOMPARE(catcher.seen.size(), message.isEmpty() ? 0 : 1);
    if (!message.isEmpty()) {
        QCOMPARE(catcher.seen.at(0).title, QStringLiteral("Edycja elementu"));
        QCOMPARE(catcher.seen.at(0).text, message);
    }
}

void TestCfgTableWidget::remove_data()
{
    QTest::addColumn<QStringList>("value");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariantList>("stored");
    QTest::addColumn<QList<QPoint>>("selected"); // (column, row)
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("grid");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<int>("writes");

    const QVariantList none;
    QTest::newRow("stored row greys")
        << QStringList{"1|2", "10|20"} << 2 << QVariantList{QByteArray("1")}
        << QList<QPoint>{{1, 0}} << true << QStringList{"1|10", "2|20"} << QStringList{"|2", "|20"}
        << 2;
    QTest::newRow("unstored row goes")
        << QStringList{"1|2", "10|20"} << 2 << none << QList<QPoint>{{0, 0}} << true
        << QStringList{"2|20"} << QStringList{"|2", "|20"} << 1;
    // Several cells of one row: the row goes once, its other cells are skipped.
    QTest::newRow("whole row selected")
        << QStringList{"1|2", "10|20"} << 2 << none << QList<QPoint>{{0, 0}, {1, 0}} << true
        << QStringList{"2|20"} << QStringList{"|2", "|20"} << 1;
    // Deliberate: a place at or above the column count goes without asking the host.
    QTest::newRow("place beyond column count")
        << QStringList{"1|2|3", "10|20|30"} << 3 << QVariantList{QByteArray("3")}
        << QList<QPoint>{{0, 2}} << true << QStringList{"1|10", "2|20"}
        << QStringList{"1|2|", "10|20|"} << 1;
    QTest::newRow("nothing selected") << QStringList{"1", "10"} << 1 << none << QList<QPoint>{}
                                      << true << QStringList{"1|10"} << QStringList{} << 0;
    QTest::newRow("capacity 0") << QStringList{"1", "10"} << 0 << none << QList<QPoint>{} << false
                                << QStringList{} << QStringList{} << 0;
}

void TestCfgTableWidget::remove()
{
    QFETCH(QStringList, value);
    QFETCH(int, capacity);
    QFETCH(QVariantList, stored);
    QFETCH(QList<QPoint>, selected);
    QFETCH(bool, result);
    QFETCH(QStringList, grid);
    QFETCH(QStringList, after);
    QFETCH(int, writes);

    TestHost host;
    addTable(host, table(value), capacity);
    host.storedItemsOf[ref] = stored;
    CfgTableWidget tableWidget;
    tableWidget.setSelectionMode(QAbstractItemView::MultiSelection);
    tableWidget.setReference(&host, ref, nullptr, {});
    for (const QPoint &cell : selected)
        tableWidget.item(cell.y(), cell.x())->setSelected(true);
    QCOMPARE(tableWidget.remove(ref), result);
    QCOMPARE(gridOf(tableWidget), grid);
    QCOMPARE(host.writes.size(), writes);
    if (!after.isEmpty())
        QCOMPARE(columnsText(lastWrite<ColumnVectors>(host, ref)), after);
    if (!stored.isEmpty() && writes == 2) {
        QCOMPARE(colourOf(tableWidget.item(0, 1)), QStringLiteral("#a0a0a4"));
        QCOMPARE(tableWidget.item(0, 0)->toolTip(), QStringLiteral("Usunięty element"));
        QCOMPARE(tableWidget.item(0, 1)->toolTip(), QString());
        // A grey row is not removed again; adding its identifier brings it back.
        host.writes.clear();
        QVERIFY(tableWidget.remove(ref));
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(tableWidget.addValue(QVariant(QStringList{"1", "11"}), ref), 0);
        QCOMPARE(gridOf(tableWidget), (QStringList{"1|11", "2|20"}));
        QCOMPARE(columnsText(lastWrite<ColumnVectors>(host, ref)), (QStringList{"1|2", "11|20"}));
        QCOMPARE(colourOf(tableWidget.item(0, 1)), QStringLiteral("#ffffff"));
    }
}

void TestCfgTableWidget::cellWidgetChange()
{
    TestHost host;
    addTable(host, table({"1|2", "10|20"}), 2);
    CfgTableWidget tableWidget;
    tableWidget.setReference(&host, ref, nullptr, {});
    QSpinBox spin;
    spin.setProperty("row", 1);
    spin.setProperty("col", 1);
    QObject::connect(&spin, SIGNAL(valueChanged(int)), &tableWidget, SLOT(changed(int)));
    spin.setValue(42);
    QCOMPARE(columnsText(lastWrite<ColumnVectors>(host, ref)), (QStringList{"1|2", "10|42"}));
    QCOMPARE(tableWidget.item(1, 1)->data(Qt::UserRole).toInt(), 42);
    tableWidget.updateControl(0);
    QCOMPARE(colourOf(tableWidget.item(1, 1)), QStringLiteral("#a0a0a4"));

    // A sender outside the table, or without the properties, changes nothing.
    host.writes.clear();
    spin.setProperty("row", 7);
    spin.setValue(43);
    spin.setProperty("row", QVariant());
    spin.setValue(44);
    tableWidget.changed(45);
    QVERIFY(host.writes.isEmpty());
}

void TestCfgTableWidget::paintingStopsAtMissingCell()
{
    TestHost host;
    addTable(host, table({"1|2|3", "10|20|30"}), 3);
    host.invalidItemsOf[ref] = {0};
    host.modifiedItemsOf[ref] = {0, 2};
    CfgTableWidget tableWidget;
    tableWidget.setReference(&host, ref, nullptr, {});
    delete tableWidget.takeItem(1, 1);
    tableWidget.updateControl(0);
    QCOMPARE(colourOf(tableWidget.item(0, 0)), QStringLiteral("#ff0000"));
    QCOMPARE(tableWidget.item(0, 1)->toolTip(), QStringLiteral("Nieprawidłowy element"));
    QCOMPARE(colourOf(tableWidget.item(1, 0)), QStringLiteral("#ffffff"));
    QCOMPARE(colourOf(tableWidget.item(2, 0)), QString());
    tableWidget.setItem(1, 1, new QTableWidgetItem("x"));
    tableWidget.updateControl(0);
    QCOMPARE(colourOf(tableWidget.item(2, 1)), QStringLiteral("#ffff00"));
}

QTEST_MAIN(TestCfgTableWidget)
#include "tst_cfgtablewidget.moc"
