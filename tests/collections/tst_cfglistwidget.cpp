#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/valuetypes.h"
#include "tests/collections/collectiontest.h"
#include "tests/support/modalcatcher.h"

#include <QLabel>
#include <QtTest>

using namespace collectiontest;
using U16 = QVector<quint16>;
using U32 = QVector<quint32>;
using Bytes = QVector<QByteArray>;
using Strings = QVector<QString>;

namespace {
const int ref = 40;

QStringList textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}

// Each item's Qt::UserRole in list order; -1 where it holds none.
QList<qint64> placesOf(const QListWidget &list)
{
    QList<qint64> places;
    for (int row = 0; row < list.count(); ++row) {
        const QVariant data = list.item(row)->data(Qt::UserRole);
        places << (data.isValid() ? qint64(data.toUInt()) : -1);
    }
    return places;
}

qint64 live(int place)
{
    return qint64(liveFlag | uint(place));
}

QVariant names8()
{
    return QVariant::fromValue(QList<NamedUShort>{{5, QStringLiteral("Pięć")}});
}

QVariant names24()
{
    return QVariant::fromValue(QList<NamedUInt>{{7, QString()}, {9, QStringLiteral("Dziewięć")}});
}
} // namespace

using Places = QList<qint64>;

class TestCfgListWidget : public QObject
{
    Q_OBJECT

private slots:
    void selectionChangeConnectionFails();
    void binding_data();
    void binding();
    void add_data();
    void add();
    void duplicateIsRefused();
    void restoreFoldsRemovedItems();
    void remove_data();
    void remove();
    void painting();
    void isItemExists_data();
    void isItemExists();
    void editInPlace_data();
    void editInPlace();
    void wrongInputLeavesValue_data();
    void wrongInputLeavesValue();
};

void TestCfgListWidget::selectionChangeConnectionFails()
{
    // Deliberate: the list takes no action on a selection change.
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("No such slot CfgListWidget::selectionChanged\\(\\)"));
    CfgListWidget list;
}

void TestCfgListWidget::binding_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("names");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<Places>("places");

    const QVariant none;
    QTest::newRow("8, number") << 8 << QVariant::fromValue(U16{0, 0x1234}) << none << 1
                               << QStringList{"4660"} << Places{live(1)};
    QTest::newRow("8, names") << 8 << QVariant::fromValue(U16{5, 6}) << names8() << 1
                              << QStringList{"Pięć", "Nieznana wartość (6)"}
                              << Places{live(0), live(1)};
    QTest::newRow("24, empty name")
        << 24 << QVariant::fromValue(U32{7, 0, 9}) << names24() << 1
        << QStringList{"Nieznana wartość (7)", "Dziewięć"} << Places{live(0), live(2)};
    QTest::newRow("29, network") << 29 << QVariant::fromValue(U32{266243}) << none << 1
                                 << QStringList{"260003 Polska Orange / PTK Centertel Sp. z o.o."}
                                 << Places{live(0)};
    QTest::newRow("29, code 1000 runs into the country")
        << 29 << QVariant::fromValue(U32{(260u << 10) | 1000u}) << none << 1
        << QStringList{"261000 Polska Nieznany"} << Places{live(0)};
    const Bytes bytes{QByteArray("AB\0C", 4), QByteArray(4, '\0'), QByteArray(), "12"};
    QTest::newRow("20, bytes") << 20 << QVariant::fromValue(bytes) << none << 1
                               << QStringList{"AB", "12"} << Places{live(0), live(3)};
    QTest::newRow("20, input mode 0 shows text too")
        << 20 << QVariant::fromValue(bytes) << none << 0 << QStringList{"AB", "12"}
        << Places{live(0), live(3)};
    QTest::newRow("13, strings") << 13 << QVariant::fromValue(Strings{"", "x", "y"}) << none << 1
                                 << QStringList{"x", "y"} << Places{live(1), live(2)};
    QTest::newRow("wrong container")
        << 8 << QVariant::fromValue(U32{1, 2}) << none << 1 << QStringList{} << Places{};
    QTest::newRow("plain list") << 13 << QVariant(QStringList{"x"}) << none << 1 << QStringList{}
                                << Places{};
    QTest::newRow("unknown type") << 5 << QVariant::fromValue(U32{1, 2}) << none << 1
                                  << QStringList{} << Places{};
}

void TestCfgListWidget::binding()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QVariant, names);
    QFETCH(int, mode);
    QFETCH(QStringList, texts);
    QFETCH(Places, places);

    TestHost host;
    MainConfigObject &object = host.add(ref, type, value);
    object.valueNames = names;
    object.toolTip = QStringLiteral("Klucze");
    CfgListWidget list;
    list.inputMode(mode);
    QLabel label;
    list.addItem(QStringLiteral("stale"));
    list.setReference(&host, ref, &label, {});
    QCOMPARE(textsOf(list), texts);
    QCOMPARE(placesOf(list), places);
    QCOMPARE(list.toolTip(), QStringLiteral("Klucze"));
    QCOMPARE(host.records[ref].control, &list);
    QCOMPARE(host.records[ref].label, &label);
    QVERIFY(host.writes.isEmpty());
    if (!texts.isEmpty())
        QCOMPARE(colourOf(list.item(0)), QString()); // painted only by updateControl
    QVERIFY(list.item(0) == nullptr || (list.item(0)->flags() & Qt::ItemIsEditable));
}

void TestCfgListWidget::add_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("names");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<Places>("places");
    QTest::addColumn<QVariant>("written"); // invalid: nothing written

    const QVariant none;
    QTest::newRow("13, empty list")
        << 13 << 3 << QVariant::fromValue(Strings(3)) << none << QVariant("a") << QStringList{"a"}
        << Places{live(0)} << QVariant::fromValue(Strings{"a", "", ""});
    QTest::newRow("24, free middle place shows last")
        << 24 << 3 << QVariant::fromValue(U32{4, 0, 6}) << none << QVariant(5u)
        << QStringList{"4", "6", "5"} << Places{live(0), live(2), live(1)}
        << QVariant::fromValue(U32{4, 5, 6});
    QTest::newRow("8, low 16 bits")
        << 8 << 2 << QVariant::fromValue(U16(2)) << none << QVariant(70000u) << QStringList{"70000"}
        << Places{live(0)} << QVariant::fromValue(U16{4464, 0});
    QTest::newRow("8, by name") << 8 << 2 << QVariant::fromValue(U16(2)) << names8()
                                << QVariant("Pięć") << QStringList{"Pięć"} << Places{live(0)}
                                << QVariant::fromValue(U16{5, 0});
    QTest::newRow("20, bytes") << 20 << 2 << QVariant::fromValue(Bytes{"x", QByteArray(3, '\0')})
                               << none << QVariant("AB") << QStringList{"x", "AB"}
                               << Places{live(0), live(1)} << QVariant::fromValue(Bytes{"x", "AB"});
    QTest::newRow("29, network") << 29 << 1 << QVariant::fromValue(U32(1)) << none
                                 << QVariant(266243u)
                                 << QStringList{"260003 Polska Orange / PTK Centertel Sp. z o.o."}
                                 << Places{live(0)} << QVariant::fromValue(U32{266243});
    // A full collection of these types still shows the item, with no place.
    QTest::newRow("13, full") << 13 << 1 << QVariant::fromValue(Strings{"a"}) << none
                              << QVariant("b") << QStringList{"a", "b"} << Places{live(0), -1}
                              << QVariant();
    QTest::newRow("8, full") << 8 << 1 << QVariant::fromValue(U16{1}) << none << QVariant(2u)
                             << QStringList{"1"} << Places{live(0)} << QVariant();
    QTest::newRow("capacity below the vector")
        << 13 << 1 << QVariant::fromValue(Strings{"a", ""}) << none << QVariant("b")
        << QStringList{"a", "b"} << Places{live(0), -1} << QVariant();
    QTest::newRow("capacity above the vector")
        << 24 << 5 << QVariant::fromValue(U32{1}) << none << QVariant(2u) << QStringList{"1", "2"}
        << Places{live(0), -1} << QVariant();
    QTest::newRow("capacity 0") << 13 << 0 << QVariant::fromValue(Strings{"a", ""}) << none
                                << QVariant("b") << QStringList{"a"} << Places{live(0)}
                                << QVariant();
    QTest::newRow("unknown type") << 5 << 3 << QVariant::fromValue(Strings(3)) << none
                                  << QVariant("b") << QStringList{} << Places{} << QVariant();
    QTest::newRow("wrong container") << 13 << 3 << QVariant::fromValue(U32(3)) << none
                                     << QVariant("b") << QStringList{} << Places{} << QVariant();
    QTest::newRow("invalid input") << 13 << 3 << QVariant::fromValue(Strings(3)) << none
                                   << QVariant() << QStringList{} << Places{} << QVariant();
}

void TestCfgListWidget::add()
{
    QFETCH(int, type);
    QFETCH(int, capacity);
    QFETCH(QVariant, value);
    QFETCH(QVariant, names);
    QFETCH(QVariant, input);
    QFETCH(QStringList, texts);
    QFETCH(Places, places);
    QFETCH(QVariant, written);

    TestHost host;
    MainConfigObject &object = host.add(ref, type, value);
    object.capacity = capacity;
    object.valueNames = names;
    host.modifiedItemsOf[ref] = {1};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    QCOMPARE(list.addValue(input, ref), 0);
    QCOMPARE(textsOf(list), texts);
    QCOMPARE(placesOf(list), places);
    if (written.isValid()) {
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes.at(0).ref, ref);
        QCOMPARE(host.writes.at(0).value, written);
        QCOMPARE(list.currentItem(), list.item(list.count() - 1));
    } else {
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(host.records[ref].value, value);
    }
    // The add ends with a repaint: every item carries its state.
    for (int row = 0; row < list.count(); ++row) {
        const qint64 data = places.at(row);
        const QString expected = data < 0 ? "#a0a0a4" : data == live(1) ? "#ffff00" : "#ffffff";
        QCOMPARE(colourOf(list.item(row)), expected);
    }
}

void TestCfgListWidget::duplicateIsRefused()
{
    TestHost host;
    host.add(ref, 13, QVariant::fromValue(Strings{"a", ""})).capacity = 2;
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    ModalCatcher catcher;
    QCOMPARE(list.addValue(QVariant("a"), ref), 1);
    QCOMPARE(catcher.seen.size(), 1);
    QCOMPARE(catcher.seen.at(0).title, QStringLiteral("Nowy element"));
    QCOMPARE(catcher.seen.at(0).text, QStringLiteral("Identyfikator jest już używany"));
    QCOMPARE(textsOf(list), QStringList{"a"});
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(colourOf(list.item(0)), QString()); // nothing refreshed
}

void TestCfgListWidget::restoreFoldsRemovedItems()
{
    TestHost host;
    host.add(ref, 24, QVariant::fromValue(U32{3, 8, 3})).capacity = 3;
    host.storedItemsOf[ref] = {QVariant(3u), QVariant(8u)};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    QVERIFY(list.removeAll(ref));
    QCOMPARE(placesOf(list), (Places{0, 1, 2}));
    QCOMPARE(host.records[ref].value, QVariant::fromValue(U32{0, 0, 0}));

    // Two grey items of one text fold into the first, which takes the place of the last.
    QCOMPARE(list.addValue(QVariant(3u), ref), 0);
    QCOMPARE(textsOf(list), (QStringList{"3", "8"}));
    QCOMPARE(placesOf(list), (Places{live(2), 1}));
    QCOMPARE(host.records[ref].value, QVariant::fromValue(U32{0, 0, 3}));
    QCOMPARE(list.item(0)->toolTip(), QStringLiteral("Istniejący element"));

    // One grey item comes back in its old place and its old position.
    QCOMPARE(list.addValue(QVariant(8u), ref), 0);
    QCOMPARE(placesOf(list), (Places{live(2), live(1)}));
    QCOMPARE(host.records[ref].value, QVariant::fromValue(U32{0, 8, 3}));
}

void TestCfgListWidget::remove_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariantList>("stored");
    QTest::addColumn<QList<int>>("selected"); // rows; {-1}: removeAll
    QTest::addColumn<bool>("result");
    QTest::addColumn<Places>("places");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<int>("writes");

    QTest::newRow("all, mixed") << 24 << 3 << QVariant::fromValue(U32{1, 2, 3}) << QVariantList{2u}
                                << QList<int>{-1} << true << Places{1}
                                << QVariant::fromValue(U32{0, 0, 0}) << 3;
    // An element cleared by an earlier item is not written back by a later kept one.
    QTest::newRow("unstored, then stored")
        << 8 << 2 << QVariant::fromValue(U16{1, 2}) << QVariantList{2} << QList<int>{-1} << true
        << Places{1} << QVariant::fromValue(U16{0, 0}) << 2;
    // Nothing changes, not even the colours.
    QTest::newRow("nothing selected")
        << 24 << 3 << QVariant::fromValue(U32{1, 2, 3}) << QVariantList{} << QList<int>{} << true
        << Places{live(0), live(1), live(2)} << QVariant::fromValue(U32{1, 2, 3}) << 0;
    QTest::newRow("no room left") << 24 << 2 << QVariant::fromValue(U32{1, 2, 3}) << QVariantList{}
                                  << QList<int>{0} << false << Places{live(1), live(2)}
                                  << QVariant::fromValue(U32{0, 2, 3}) << 1;
    QTest::newRow("13 never kept")
        << 13 << 2 << QVariant::fromValue(Strings{"a", "b"}) << QVariantList{"a", "b", QByteArray()}
        << QList<int>{0} << true << Places{live(1)} << QVariant::fromValue(Strings{"", "b"}) << 1;
    QTest::newRow("20 kept ends empty")
        << 20 << 2 << QVariant::fromValue(Bytes{"ab", "cd"}) << QVariantList{QByteArray("ab")}
        << QList<int>{0} << true << Places{0, live(1)} << QVariant::fromValue(Bytes{"", "cd"}) << 1;
    QTest::newRow("capacity 0") << 29 << 0 << QVariant::fromValue(U32{266243}) << QVariantList{}
                                << QList<int>{0} << false << Places{} << QVariant::fromValue(U32{0})
                                << 1;
}

void TestCfgListWidget::remove()
{
    QFETCH(int, type);
    QFETCH(int, capacity);
    QFETCH(QVariant, value);
    QFETCH(QVariantList, stored);
    QFETCH(QList<int>, selected);
    QFETCH(bool, result);
    QFETCH(Places, places);
    QFETCH(QVariant, after);
    QFETCH(int, writes);

    TestHost host;
    host.add(ref, type, value).capacity = capacity;
    host.storedItemsOf[ref] = stored;
    CfgListWidget list;
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    list.setReference(&host, ref, nullptr, {});
    bool removed = false;
    if (selected == QList<int>{-1}) {
        removed = list.removeAll(ref);
    } else {
        for (int row : selected)
            list.item(row)->setSelected(true);
        removed = list.remove(ref);
    }
    QCOMPARE(removed, result);
    QCOMPARE(placesOf(list), places);
    QCOMPARE(host.records[ref].value, after);
    QCOMPARE(host.writes.size(), writes);
    for (int row = 0; row < list.count() && !selected.isEmpty(); ++row) {
        const bool grey = !(places.at(row) & liveFlag);
        QCOMPARE(colourOf(list.item(row)), grey ? QStringLiteral("#a0a0a4") : "#ffffff");
        QCOMPARE(list.item(row)->toolTip(),
                 grey ? QStringLiteral("Usunięty element") : "Istniejący element");
    }

    // A grey item removed again stays grey and clears its place once more.
    if (!places.isEmpty() && !(places.first() & liveFlag)) {
        QCOMPARE(colourOf(list.item(0)), QStringLiteral("#a0a0a4"));
        host.writes.clear();
        list.clearSelection();
        list.item(0)->setSelected(true);
        list.remove(ref);
        QCOMPARE(placesOf(list), places);
        QCOMPARE(host.writes.size(), 1);
    }
}

void TestCfgListWidget::painting()
{
    TestHost host;
    host.add(ref, 24, QVariant::fromValue(U32{1, 2, 3, 4})).capacity = 4;
    host.storedItemsOf[ref] = {4u};
    host.invalidItemsOf[ref] = {0, 3};
    host.modifiedItemsOf[ref] = {0, 1, 3};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    list.item(3)->setSelected(true);
    list.remove(ref);
    list.updateControl(7);
    const QStringList colours{"#ff0000", "#ffff00", "#ffffff", "#a0a0a4"};
    const QStringList tips{"Nieprawidłowy element", "Zmodyfikowany element", "Istniejący element",
                           "Usunięty element"};
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(colourOf(list.item(row)), colours.at(row));
        QCOMPARE(list.item(row)->toolTip(), tips.at(row));
    }
}

void TestCfgListWidget::isItemExists_data()
{
    QTest::addColumn<QString>("editText");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("result");
    QTest::addColumn<int>("index");

    QTest::newRow("present") << ""
                             << "b" << true << 1;
    QTest::newRow("absent") << ""
                            << "z" << false << -1;
    QTest::newRow("removed only") << ""
                                  << "c" << false << 2;
    QTest::newRow("under edit") << "b"
                                << "b" << false << 1;
}

void TestCfgListWidget::isItemExists()
{
    QFETCH(QString, editText);
    QFETCH(QString, text);
    QFETCH(bool, result);
    QFETCH(int, index);

    TestHost host;
    host.add(ref, 13, QVariant::fromValue(Strings{"a", "b"})).capacity = 3;
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    auto *removed = new QListWidgetItem(QStringLiteral("c"));
    removed->setData(Qt::UserRole, 2u);
    list.addItem(removed);
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->text() == editText)
            list.setCurrentRow(row);
    list.doubleClicked(nullptr);
    int found = 99;
    QCOMPARE(list.isItemExists(QVariant(text), found), result);
    QCOMPARE(found, index);
}

void TestCfgListWidget::editInPlace_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("removeFirst");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVariant>("after");

    // A present element never changes in place: the edit goes back and stores the same.
    QTest::newRow("present to a new text") << 13 << false << "z" << QStringList{"a", "b"}
                                           << QVariant::fromValue(Strings{"a", "b", ""});
    QTest::newRow("present to a present text") << 13 << false << "b" << QStringList{"a", "b"}
                                               << QVariant::fromValue(Strings{"a", "b", ""});
    // A removed item edited to a new text comes back with it.
    QTest::newRow("20, removed to a new text")
        << 20 << true << "z" << QStringList{"z", "b"} << QVariant::fromValue(Bytes{"z", "b", ""});
    QTest::newRow("24, removed to a number")
        << 24 << true << "17" << QStringList{"17", "66"} << QVariant::fromValue(U32{17, 66, 0});
}

void TestCfgListWidget::editInPlace()
{
    QFETCH(int, type);
    QFETCH(bool, removeFirst);
    QFETCH(QString, typed);
    QFETCH(QStringList, texts);
    QFETCH(QVariant, after);

    TestHost host;
    QVariant value = QVariant::fromValue(Strings{"a", "b", ""});
    if (type == 20)
        value = QVariant::fromValue(Bytes{"a", "b", ""});
    if (type == 24)
        value = QVariant::fromValue(U32{55, 66, 0});
    host.add(ref, type, value).capacity = 3;
    host.storedItemsOf[ref] = {QByteArray("a"), 55u};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    if (removeFirst) {
        list.item(0)->setSelected(true);
        list.remove(ref);
        QVERIFY(!(list.item(0)->data(Qt::UserRole).toUInt() & liveFlag));
    }
    ModalCatcher catcher;
    QVERIFY(collectiontest::editInPlace(list, list.visualItemRect(list.item(0)), typed));
    QCOMPARE(textsOf(list), texts);
    QCOMPARE(host.records[ref].value, after);
    QCOMPARE(placesOf(list).first(), live(0));
    QVERIFY(catcher.seen.isEmpty());
}

void TestCfgListWidget::wrongInputLeavesValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("index");

    QTest::newRow("index past the end") << 24 << QVariant::fromValue(U32{1, 2}) << 2;
    QTest::newRow("negative index") << 13 << QVariant::fromValue(Strings{"a"}) << -1;
    QTest::newRow("wrong container") << 8 << QVariant::fromValue(U32{1, 2}) << 0;
    QTest::newRow("unknown type") << 3 << QVariant::fromValue(U32{1, 2}) << 0;
}

void TestCfgListWidget::wrongInputLeavesValue()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(int, index);

    TestHost host;
    host.add(ref, type, value).capacity = -1;
    CfgListWidget list;
    list.setValue(index, QVariant(5u)); // unbound
    list.updateControl(1);
    QCOMPARE(list.addValue(QVariant(5u), ref), 0);
    QVERIFY(list.removeAll(ref));
    list.setReference(&host, ref, nullptr, {});
    list.setValue(index, QVariant(5u));
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(host.records[ref].value, value);
    // A negative capacity compares as a huge one: removal still reports room.
    list.removeAll(ref);
    QCOMPARE(list.addValue(QVariant(), ref), 0);
}

QTEST_MAIN(TestCfgListWidget)
#include "tst_cfglistwidget.moc"
