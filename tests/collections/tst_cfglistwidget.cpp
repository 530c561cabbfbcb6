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

// The item texts in list order, joined by '|'.
QString textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts.join('|');
}

// Each item's Qt::UserRole in list order: "2" a present element at place 2, "~2" a removed
// one, "-" no data at all.
QString placesOf(const QListWidget &list)
{
    QStringList places;
    for (int row = 0; row < list.count(); ++row) {
        const QVariant data = list.item(row)->data(Qt::UserRole);
        const uint place = data.toUInt() & ~liveFlag;
        places << (!data.isValid()            ? QStringLiteral("-")
                   : data.toUInt() & liveFlag ? QString::number(place)
                                              : QStringLiteral("~%1").arg(place));
    }
    return places.join(' ');
}

template <class Element> QVariant vec(std::initializer_list<Element> elements)
{
    return QVariant::fromValue(QVector<Element>(elements));
}

// "text@place" for each item in list order, joined by '|'.
QString itemsOf(const QListWidget &list)
{
    QStringList items;
    const QStringList places = placesOf(list).split(' ');
    for (int row = 0; row < list.count(); ++row)
        items << list.item(row)->text() + '@' + places.at(row);
    return items.join('|');
}

QVariant u16(std::initializer_list<quint16> elements)
{
    return vec(elements);
}

QVariant u32(std::initializer_list<quint32> elements)
{
    return vec(elements);
}

QVariant bytes(std::initializer_list<QByteArray> elements)
{
    return vec(elements);
}

QVariant strings(std::initializer_list<QString> elements)
{
    return vec(elements);
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
    QTest::addColumn<QString>("items");

    const QVariant none;
    QTest::newRow("8, number") << 8 << u16({0, 0x1234}) << none << 1 << "4660@1";
    QTest::newRow("8, names") << 8 << u16({5, 6}) << names8() << 1
                              << "Pięć@0|Nieznana wartość (6)@1";
    QTest::newRow("24, empty name")
        << 24 << u32({7, 0, 9}) << names24() << 1 << "Nieznana wartość (7)@0|Dziewięć@2";
    QTest::newRow("29, network") << 29 << u32({266243}) << none << 1
                                 << "260003 Polska Orange / PTK Centertel Sp. z o.o.@0";
    const QVariant identifiers = bytes({QByteArray("AB\0C", 4), QByteArray(4, '\0'), "", "12"});
    QTest::newRow("20, bytes") << 20 << identifiers << none << 1 << "AB@0|12@3";
    QTest::newRow("20, input mode 0") << 20 << identifiers << none << 0 << "AB@0|12@3";
    QTest::newRow("13, strings") << 13 << strings({"", "x", "y"}) << none << 1 << "x@1|y@2";
    QTest::newRow("wrong container") << 8 << u32({1, 2}) << none << 1 << "";
    QTest::newRow("unknown type") << 5 << u32({1, 2}) << none << 1 << "";
}

void TestCfgListWidget::binding()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QVariant, names);
    QFETCH(int, mode);
    QFETCH(QString, items);

    TestHost host;
    MainConfigObject &object = host.add(ref, type, value);
    object.valueNames = names;
    object.toolTip = QStringLiteral("Klucze");
    CfgListWidget list;
    list.inputMode(mode);
    QLabel label;
    list.addItem(QStringLiteral("stale"));
    list.setReference(&host, ref, &label, {});
    QCOMPARE(itemsOf(list), items);
    QCOMPARE(list.toolTip(), QStringLiteral("Klucze"));
    QCOMPARE(host.records[ref].control, &list);
    QCOMPARE(host.records[ref].label, &label);
    QVERIFY(host.writes.isEmpty());
    if (list.count() > 0) {
        QCOMPARE(colourOf(list.item(0)), QString()); // painted only by updateControl
        QVERIFY(list.item(0)->flags() & Qt::ItemIsEditable);
    }
}

void TestCfgListWidget::add_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("items");
    QTest::addColumn<QVariant>("written"); // invalid: nothing written

    const QVariant none;
    const QVariant empty3 = strings({"", "", ""});
    QTest::newRow("13, empty list")
        << 13 << 3 << empty3 << QVariant("a") << "a@0" << strings({"a", "", ""});
    QTest::newRow("24, free middle place shows last")
        << 24 << 3 << u32({4, 0, 6}) << QVariant(5u) << "4@0|6@2|5@1" << u32({4, 5, 6});
    QTest::newRow("8, low 16 bits")
        << 8 << 2 << u16({0, 0}) << QVariant(70000u) << "70000@0" << u16({4464, 0});
    QTest::newRow("8, by name") << 8 << 2 << u16({0, 0}) << QVariant("Pięć") << "Pięć@0"
                                << u16({5, 0});
    QTest::newRow("20, bytes") << 20 << 2 << bytes({"x", QByteArray(3, '\0')}) << QVariant("AB")
                               << "x@0|AB@1" << bytes({"x", "AB"});
    QTest::newRow("29, network") << 29 << 1 << u32({0}) << QVariant(266243u)
                                 << "260003 Polska Orange / PTK Centertel Sp. z o.o.@0"
                                 << u32({266243});
    // A full collection of these types still shows the item, with no place.
    QTest::newRow("13, full") << 13 << 1 << strings({"a"}) << QVariant("b") << "a@0|b@-" << none;
    QTest::newRow("8, full") << 8 << 1 << u16({1}) << QVariant(2u) << "1@0" << none;
    QTest::newRow("capacity below the vector")
        << 13 << 1 << strings({"a", ""}) << QVariant("b") << "a@0|b@-" << none;
    QTest::newRow("capacity above the vector")
        << 24 << 5 << u32({1}) << QVariant(2u) << "1@0|2@-" << none;
    QTest::newRow("capacity 0") << 13 << 0 << strings({"a", ""}) << QVariant("b") << "a@0" << none;
    QTest::newRow("unknown type") << 5 << 3 << empty3 << QVariant("b") << "" << none;
    QTest::newRow("wrong container") << 13 << 3 << u32({0, 0}) << QVariant("b") << "" << none;
    QTest::newRow("invalid input") << 13 << 3 << empty3 << QVariant() << "" << none;
}

void TestCfgListWidget::add()
{
    QFETCH(int, type);
    QFETCH(int, capacity);
    QFETCH(QVariant, value);
    QFETCH(QVariant, input);
    QFETCH(QString, items);
    QFETCH(QVariant, written);

    TestHost host;
    MainConfigObject &object = host.add(ref, type, value);
    object.capacity = capacity;
    if (type == 8 && input.type() == QVariant::String)
        object.valueNames = names8();
    host.modifiedItemsOf[ref] = {1};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    QCOMPARE(list.addValue(input, ref), 0);
    QCOMPARE(itemsOf(list), items);
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
    const QStringList states = placesOf(list).split(' ');
    for (int row = 0; row < list.count(); ++row) {
        const QString colour = states.at(row) == "-"   ? "#a0a0a4"
                               : states.at(row) == "1" ? "#ffff00"
                                                       : "#ffffff";
        QCOMPARE(colourOf(list.item(row)), colour);
    }
}

void TestCfgListWidget::duplicateIsRefused()
{
    TestHost host;
    host.add(ref, 13, strings({"a", ""})).capacity = 2;
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    ModalCatcher catcher;
    QCOMPARE(list.addValue(QVariant("a"), ref), 1);
    QCOMPARE(catcher.seen.size(), 1);
    QCOMPARE(catcher.seen.at(0).title, QStringLiteral("Nowy element"));
    QCOMPARE(catcher.seen.at(0).text, QStringLiteral("Identyfikator jest już używany"));
    QCOMPARE(textsOf(list), QStringLiteral("a"));
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(colourOf(list.item(0)), QString()); // nothing refreshed
}

void TestCfgListWidget::restoreFoldsRemovedItems()
{
    TestHost host;
    host.add(ref, 24, u32({3, 8, 3})).capacity = 3;
    host.storedItemsOf[ref] = {QVariant(3u), QVariant(8u)};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    QVERIFY(list.removeAll(ref));
    QCOMPARE(placesOf(list), QStringLiteral("~0 ~1 ~2"));
    QCOMPARE(host.records[ref].value, u32({0, 0, 0}));

    // Two grey items of one text fold into the first, which takes the place of the last.
    QCOMPARE(list.addValue(QVariant(3u), ref), 0);
    QCOMPARE(textsOf(list), QStringLiteral("3|8"));
    QCOMPARE(placesOf(list), QStringLiteral("2 ~1"));
    QCOMPARE(host.records[ref].value, u32({0, 0, 3}));
    QCOMPARE(list.item(0)->toolTip(), QStringLiteral("Istniejący element"));

    // One grey item comes back in its old place and its old position.
    QCOMPARE(list.addValue(QVariant(8u), ref), 0);
    QCOMPARE(placesOf(list), QStringLiteral("2 1"));
    QCOMPARE(host.records[ref].value, u32({0, 8, 3}));
}

void TestCfgListWidget::remove_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("capacity");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariantList>("stored");
    QTest::addColumn<int>("selected"); // a row, or -1 for removeAll, -2 for nothing
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("places");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<int>("writes");

    QTest::newRow("all, mixed") << 24 << 3 << u32({1, 2, 3}) << QVariantList{2u} << -1 << true
                                << "~1" << u32({0, 0, 0}) << 3;
    // An element cleared by an earlier item is not written back by a later kept one.
    QTest::newRow("unstored, then stored")
        << 8 << 2 << u16({1, 2}) << QVariantList{2} << -1 << true << "~1" << u16({0, 0}) << 2;
    // Nothing changes, not even the colours.
    QTest::newRow("nothing selected") << 24 << 3 << u32({1, 2, 3}) << QVariantList{} << -2 << true
                                      << "0 1 2" << u32({1, 2, 3}) << 0;
    QTest::newRow("no room left") << 24 << 2 << u32({1, 2, 3}) << QVariantList{} << 0 << false
                                  << "1 2" << u32({0, 2, 3}) << 1;
    QTest::newRow("13 never kept")
        << 13 << 2 << strings({"a", "b"}) << QVariantList{"a", QByteArray("a")} << 0 << true << "1"
        << strings({"", "b"}) << 1;
    QTest::newRow("20 kept ends empty")
        << 20 << 2 << bytes({"ab", "cd"}) << QVariantList{QByteArray("ab")} << 0 << true << "~0 1"
        << bytes({"", "cd"}) << 1;
    QTest::newRow("capacity 0") << 29 << 0 << u32({266243}) << QVariantList{} << 0 << false << ""
                                << u32({0}) << 1;
}

void TestCfgListWidget::remove()
{
    QFETCH(int, type);
    QFETCH(int, capacity);
    QFETCH(QVariant, value);
    QFETCH(QVariantList, stored);
    QFETCH(int, selected);
    QFETCH(bool, result);
    QFETCH(QString, places);
    QFETCH(QVariant, after);
    QFETCH(int, writes);

    TestHost host;
    host.add(ref, type, value).capacity = capacity;
    host.storedItemsOf[ref] = stored;
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    if (selected >= 0)
        list.item(selected)->setSelected(true);
    QCOMPARE(selected == -1 ? list.removeAll(ref) : list.remove(ref), result);
    QCOMPARE(placesOf(list), places);
    QCOMPARE(host.records[ref].value, after);
    QCOMPARE(host.writes.size(), writes);
    for (int row = 0; row < list.count() && selected != -2; ++row) {
        const bool grey = placesOf(list).split(' ').at(row).startsWith('~');
        QCOMPARE(colourOf(list.item(row)), grey ? QStringLiteral("#a0a0a4") : "#ffffff");
        QCOMPARE(list.item(row)->toolTip(),
                 grey ? QStringLiteral("Usunięty element") : "Istniejący element");
    }
    if (selected == -2)
        QCOMPARE(colourOf(list.item(0)), QString());

    // A grey item removed again stays grey and clears its place once more.
    if (places.startsWith('~')) {
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
    host.add(ref, 24, u32({1, 2, 3, 4})).capacity = 4;
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

void TestCfgListWidget::editInPlace_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("removeFirst");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<QVariant>("after");

    // A present element never changes in place: the edit goes back and stores the same.
    const QVariant value = strings({"a", "b", ""});
    QTest::newRow("present to a new text") << value << false << "z"
                                           << "a|b" << value;
    QTest::newRow("present to a present text") << value << false << "b"
                                               << "a|b" << value;
    // A removed item edited to a new text comes back with it.
    QTest::newRow("20, removed to a new text") << bytes({"a", "b", ""}) << true << "z"
                                               << "z|b" << bytes({"z", "b", ""});
    QTest::newRow("24, removed to a number") << u32({55, 66, 0}) << true << "17"
                                             << "17|66" << u32({17, 66, 0});
}

void TestCfgListWidget::editInPlace()
{
    QFETCH(QVariant, value);
    QFETCH(bool, removeFirst);
    QFETCH(QString, typed);
    QFETCH(QString, texts);
    QFETCH(QVariant, after);

    TestHost host;
    const int type = value.userType() == qMetaTypeId<QVector<QString>>()      ? 13
                     : value.userType() == qMetaTypeId<QVector<QByteArray>>() ? 20
                                                                              : 24;
    host.add(ref, type, value).capacity = 3;
    host.storedItemsOf[ref] = {QByteArray("a"), 55u};
    CfgListWidget list;
    list.setReference(&host, ref, nullptr, {});
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    if (removeFirst) {
        list.item(0)->setSelected(true);
        list.remove(ref);
        QCOMPARE(placesOf(list), QStringLiteral("~0 1"));
    }
    ModalCatcher catcher;
    QVERIFY(collectiontest::editInPlace(list, list.visualItemRect(list.item(0)), typed));
    QCOMPARE(textsOf(list), texts);
    QCOMPARE(host.records[ref].value, after);
    QCOMPARE(placesOf(list), QStringLiteral("0 1"));
    QVERIFY(catcher.seen.isEmpty());
}

void TestCfgListWidget::wrongInputLeavesValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("index");

    QTest::newRow("index past the end") << 24 << u32({1, 2}) << 2;
    QTest::newRow("negative index") << 13 << strings({"a"}) << -1;
    QTest::newRow("wrong container") << 8 << u32({1, 2}) << 0;
    QTest::newRow("unknown type") << 3 << u32({1, 2}) << 0;
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
}

QTEST_MAIN(TestCfgListWidget)
#include "tst_cfglistwidget.moc"
