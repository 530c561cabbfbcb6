// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cachingitemdelegate_p.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/valuetypes.h"
#include "tests/collections/collectiontest.h"
#include "tests/support/anycontrol.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QStyledItemDelegate>
#include <QtTest>

using namespace collectiontest;

namespace {
const int ref = 40;
const QString network = QStringLiteral("260003 Polska Orange / PTK Centertel Sp. z o.o.");

template <class Element> QVariant vec(std::initializer_list<Element> elements)
{
    return QVariant::fromValue(QVector<Element>(elements));
}

// "text@place" per item in list order, joined by '|': "@~2" a removed element
// that had place 2, "@-" an item without a place.
QString itemsOf(const QListWidget &list)
{
    QStringList items;
    for (int row = 0; row < list.count(); ++row) {
        const QVariant data = list.item(row)->data(Qt::UserRole);
        const uint place = data.toUInt() & ~liveFlag;
        items << list.item(row)->text() + '@' +
                     (!data.isValid()            ? QStringLiteral("-")
                      : data.toUInt() & liveFlag ? QString::number(place)
                                                 : QStringLiteral("~%1").arg(place));
    }

    return items.join('|');
}

// Each item's colour and tool tip in list order ("-" for no colour).
QString paintOf(const QListWidget &list)
{
    QStringList items;
    for (int row = 0; row < list.count(); ++row) {
        const QString colour = colourOf(list.item(row));
        items << (colour.isEmpty() ? QStringLiteral("-") : colour) + ' ' +
                     list.item(row)->toolTip();
    }

    return items.join('|');
}

const QString grey = QStringLiteral("#a0a0a4 Usunięty element");
const QString white = QStringLiteral("#ffffff Istniejący element");

// A list bound to parameter `ref` of `type`, holding `value`.
struct Bound
{
    TestHost host;
    CfgListWidget list;
    Bound(int type, const QVariant &value, int capacity, const QVariantList &stored = {},
          const QVariant &names = {})
    {
        MainConfigObject &object = host.add(ref, type, value);
        object.capacity = capacity;
        object.valueNames = names;
        host.storedItemsOf[ref] = stored;
        list.setReference(&host, ref, nullptr, {});
    }
};
} // namespace

// The list's kept item pixmaps must show exactly what the stock item painting
// draws, in every state an item can be shown in, and after the view's look
// changes.

namespace {

QImage shot(QWidget &widget)
{
    return widget.grab().toImage();
}
} // namespace

class TestCfgListWidget : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        allowListConnectionWarning();
        registerCollectionTypes();
    }
    void selectionChangeConnectionFails()
    {
        // Deliberate: the list takes no action on a selection change.
        const ExpectedWarning failedConnection(
            QStringLiteral("No such slot CfgListWidget::selectionChanged()"));
        CfgListWidget list;
    }

    void operations_data()
    {
        columns<int, QVariant, QVariantList, QVariant>("type", "value", "stored", "names");
        // "" binding only, "add", "remove" (row 0), "all", "edit" or "edit removed"
        // (row 0)
        columns<QString, QVariant, int, QString, QVariant, int>("op", "input", "result", "items",
                                                                "after", "writes");

        const QVariant none;
        const QVariantList no;
        const QVariant u16 = vec<quint16>({6, 0});
        const QVariant named =
            QVariant::fromValue(QList<NamedUInt>{{7, QString()}, {9, "Dziewięć"}});
        const QVariant v24 = vec<quint32>({7, 0, 9});
        const QVariant v20 = vec<QByteArray>({{"AB\0C", 4}, QByteArray(4, '\0'), "", "12"});
        row("24, names", 24, v24, no, named, "", none, 0, "Nieznana wartość (7)@0|Dziewięć@2", v24,
            0);
        row("20", 20, v20, no, none, "", none, 0, "AB@0|12@3", v20, 0);
        row("add, middle place", 24, vec<quint32>({4, 0, 6}), no, none, "add", QVariant(5u), 0,
            "4@0|6@2|5@1", vec<quint32>({4, 5, 6}), 1);
        row("add by name", 8, u16, no, QVariant::fromValue(QList<NamedUShort>{{5, "Pięć"}}), "add",
            QVariant("Pięć"), 0, "Nieznana wartość (6)@0|Pięć@1", vec<quint16>({6, 5}), 1);
        // A record whose name list is empty takes a number as it is.
        row("add, no names", 24, vec<quint32>({0, 0}), no, QVariant::fromValue(QList<NamedUInt>{}),
            "add", QVariant(5u), 0, "5@0", vec<quint32>({5, 0}), 1);
        // A full list of short numbers refuses an add without a trace.
        row("add, 8 full", 8, vec<quint16>({1, 2, 3}), no, none, "add", QVariant(5u), 0,
            "1@0|2@1|3@2", vec<quint16>({1, 2, 3}), 0);
        row("add, duplicate", 13, vec<QString>({"a", ""}), no, none, "add", QVariant("a"), 1, "a@0",
            vec<QString>({"a", ""}), 0);
        // A present element never changes in place: the edit goes back and stores
        // the same.
        row("edit", 13, vec<QString>({"a", "b", ""}), no, none, "edit", QVariant("z"), 0, "a@0|b@1",
            vec<QString>({"a", "b", ""}), 1);
        row("edit, bytes", 20, vec<QByteArray>({"ab", "", ""}), no, none, "edit", QVariant("zz"), 0,
            "ab@0", vec<QByteArray>({"ab", "", ""}), 1);
        // A removed item edited to a new text comes back with it.
        row("edit removed", 24, vec<quint32>({55, 66, 0}), QVariantList{55u}, none, "edit removed",
            QVariant("17"), 0, "17@0|66@1", vec<quint32>({17, 66, 0}), 2);
        // An element cleared by an earlier item is not written back by a later kept
        // one.
        row("remove all, 8", 8, vec<quint16>({1, 2}), QVariantList{2}, none, "all", none, 1, "2@~1",
            vec<quint16>({0, 0}), 2);
        row("no room left", 24, vec<quint32>({1, 2, 3}), no, none, "remove", none, 0, "2@1|3@2",
            vec<quint32>({0, 2, 3}), 1);
        row("13 never kept", 13, vec<QString>({"a", "b"}), QVariantList{"a"}, none, "remove", none,
            1, "b@1", vec<QString>({"", "b"}), 1);
        row("29 kept", 29, vec<quint32>({266243, 0}), QVariantList{266243u}, none, "remove", none,
            1, network + "@~0", vec<quint32>({0, 0}), 1);
        row("20 kept", 20, vec<QByteArray>({"ab", "cd"}), QVariantList{QByteArray("ab")}, none,
            "remove", none, 1, "ab@~0|cd@1", vec<QByteArray>({"", "cd"}), 1);
    }

    void operations()
    {
        auto [type, value, stored, names, op, input, result, items, after, writes] =
            fetch<int, QVariant, QVariantList, QVariant, QString, QVariant, int, QString, QVariant,
                  int>("type", "value", "stored", "names", "op", "input", "result", "items",
                       "after", "writes");

        Bound b(type, value, op == "remove" || op == "all" ? 2 : 3, stored, names);
        b.host.modifiedItemsOf[ref] = {1};
        b.list.setReference(&b.host, ref, nullptr, {}); // again: nothing doubled
        if (op.startsWith("edit")) {
            b.list.show();
            QVERIFY(QTest::qWaitForWindowExposed(&b.list));
        }
        ModalCatcher catcher;
        if (op == "add")
            QCOMPARE(b.list.addValue(input, ref), result);
        if (op == "remove" || op == "edit removed")
            b.list.item(0)->setSelected(true);
        if (op == "remove" || op == "all")
            QCOMPARE(op == "all" ? b.list.removeAll(ref) : b.list.remove(ref), bool(result));
        if (op == "edit removed")
            b.list.remove(ref);
        const QRect first = b.list.count() ? b.list.visualItemRect(b.list.item(0)) : QRect();
        if (op.startsWith("edit"))
            QVERIFY(collectiontest::editInPlace(b.list, first, input.toString()));
        QCOMPARE(itemsOf(b.list), items);
        QCOMPARE(b.host.records[ref].value, after);
        QCOMPARE(b.host.writes.size(), writes);
        QCOMPARE(catcher.seen.size(), op == "add" ? result : 0);
        if (op == "add" && result == 1) {
            QCOMPARE(catcher.seen.at(0).title, QStringLiteral("Nowy element"));
            QCOMPARE(catcher.seen.at(0).text, QStringLiteral("Identyfikator jest już używany"));
        } else if (op == "add" && writes) {
            QCOMPARE(b.list.currentItem(), b.list.item(b.list.count() - 1));
            QVERIFY(!paintOf(b.list).contains('-')); // the add ends with a repaint
        }
    }

    void greyItems()
    {
        Bound b(24, vec<quint32>({3, 8, 3}), 3, {3u, 8u});
        QVERIFY(b.list.removeAll(ref));
        QCOMPARE(itemsOf(b.list), QStringLiteral("3@~0|8@~1|3@~2"));

        // Two grey items of one text fold into the first, which takes the place of
        // the last.
        QCOMPARE(b.list.addValue(QVariant(3u), ref), 0);
        QCOMPARE(itemsOf(b.list), QStringLiteral("3@2|8@~1"));
        QCOMPARE(b.host.records[ref].value, vec<quint32>({0, 0, 3}));
        QCOMPARE(paintOf(b.list), white + '|' + grey);
        // Invalid wins over modified; removed wins over both.
        b.host.invalidItemsOf[ref] = {2};
        b.host.modifiedItemsOf[ref] = {1, 2};
        b.list.updateControl(7);
        QCOMPARE(paintOf(b.list), "#ff0000 Nieprawidłowy element|" + grey);

        // One grey item comes back in its old place and its old position.
        QCOMPARE(b.list.addValue(QVariant(8u), ref), 0);
        QCOMPARE(itemsOf(b.list), QStringLiteral("3@2|8@1"));
        QCOMPARE(b.host.records[ref].value, vec<quint32>({0, 8, 3}));
        QCOMPARE(paintOf(b.list), "#ff0000 Nieprawidłowy element|#ffff00 Zmodyfikowany element");
    }

    // A repaint and a search follow what others did to the items and the host's
    // answers, not only what the list did itself.
    void outsideChanges_data()
    {
        // addSeven: what adding 7 then returns
        columns<QString, QString, int>("change", "paint", "addSeven");

        const QString red = QStringLiteral("#ff0000 Nieprawidłowy element");
        row("host's lists", "invalid", white + '|' + red + '|' + white, 0);
        row("brush by host", "brush", white + '|' + white + '|' + white, 0);
        row("place by host", "place", white + '|' + white + '|' + grey, 0);
        row("text by host", "text", white + '|' + white + '|' + white, 1);
        row("language", "language",
            "#ffffff [CfgListWidget]Istniejący element|#ffffff "
            "[CfgListWidget]Istniejący element|#ffffff "
            "[CfgListWidget]Istniejący element",
            0);
    }

    void outsideChanges()
    {
        auto [change, paint, addSeven] =
            fetch<QString, QString, int>("change", "paint", "addSeven");

        Bound b(24, vec<quint32>({1, 2, 3, 0}), 4);
        b.list.updateControl(0);
        int index = -1;
        QVERIFY(b.list.isItemExists(QVariant(2u), index));
        ContextTranslator translator;
        if (change == "invalid")
            b.host.invalidItemsOf[ref] = {1};
        else if (change == "brush")
            b.list.item(1)->setBackground(Qt::blue);
        else if (change == "place")
            b.list.item(2)->setData(Qt::UserRole, 2u);
        else if (change == "text")
            b.list.item(1)->setText("7");
        else if (change == "language")
            QCoreApplication::installTranslator(&translator);
        b.list.updateControl(0);
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(paintOf(b.list), paint);
        ModalCatcher catcher;
        QCOMPARE(b.list.addValue(QVariant(7u), ref), addSeven);
    }

    void neverCrash_data()
    {
        // index: for setValue
        // items: after the add, which writes nothing
        columns<int, int, QVariant, int, QVariant, QString>("type", "capacity", "value", "index",
                                                            "input", "items");

        const QVariant ab = vec<QString>({"a", ""});
        row("index past the end", 24, 2, vec<quint32>({1, 2}), 2, QVariant(5u), "1@0|2@1|5@-");
        row("index -1", 13, 1, vec<QString>({"a"}), -1, QVariant("b"), "a@0|b@-");
        row("capacity 0", 13, 0, ab, 5, QVariant("b"), "a@0");
        row("wrong container", 8, 2, vec<quint32>({1, 2}), 0, QVariant(5u), "");
        row("unknown type", 5, 2, vec<quint32>({1, 2}), 0, QVariant(5u), "");
        row("invalid input", 13, 2, ab, 2, QVariant(), "a@0");
    }

    void neverCrash()
    {
        auto [type, capacity, value, index, input, items] =
            fetch<int, int, QVariant, int, QVariant, QString>("type", "capacity", "value", "index",
                                                              "input", "items");

        TestHost host;
        host.add(ref, type, value).capacity = capacity;
        CfgListWidget list;
        list.setValue(0, input); // unbound
        list.updateControl(1);
        QCOMPARE(list.addValue(input, ref), 0);
        QVERIFY(list.removeAll(ref));
        list.setReference(&host, ref, nullptr, {});
        list.setValue(index, input);
        QCOMPARE(list.addValue(input, ref), 0);
        QCOMPARE(itemsOf(list), items);
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(host.records[ref].value, value);
        list.selectAll();
        list.remove(ref);
        list.updateControl(1);
    }

    void containersByName_data()
    {
        columns<QByteArray, int>("name", "id");

        row("u16", QByteArray("QVector<quint16>"), qMetaTypeId<QVector<quint16>>());
        row("u32", QByteArray("QVector<quint32>"), qMetaTypeId<QVector<quint32>>());
        row("str", QByteArray("QVector<QString>"), qMetaTypeId<QVector<QString>>());
        row("bytes", QByteArray("QVector<QByteArray>"), qMetaTypeId<QVector<QByteArray>>());
        row("columns", QByteArray("QVector<QVector<QByteArray> >"), qMetaTypeId<ColumnVectors>());
        row("uints", QByteArray("QList<uint>"), qMetaTypeId<QList<uint>>());
        row("named u16", QByteArray("QList<NamedUShort>"), qMetaTypeId<QList<NamedUShort>>());
        row("named u32", QByteArray("QList<NamedUInt>"), qMetaTypeId<QList<NamedUInt>>());
    }

    void containersByName()
    {
        auto [name, id] = fetch<QByteArray, int>("name", "id");

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        QCOMPARE(QMetaType::fromName(name).id(), id);
#else
        QCOMPARE(QMetaType::type(name.constData()), id);
#endif
        QCOMPARE(collectionTypeId(name.constData()), id);
    }

    // Qt 6 makes QVector<T> the same type as QList<T>: the documented names still find their
    // type, but "QVector<quint32>" and "QList<uint>" become one type under Qt 6's own names.
    void qtFoldsVectorsIntoLists()
    {
        const QVariant vector = QVariant::fromValue(QVector<QByteArray>{});
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        QCOMPARE(collectionTypeId("QVector<quint32>"), collectionTypeId("QList<uint>"));
        QCOMPARE(QByteArray(vector.typeName()), QByteArray("QByteArrayList"));
#else
        QVERIFY(collectionTypeId("QVector<quint32>") != collectionTypeId("QList<uint>"));
        QCOMPARE(QByteArray(vector.typeName()), QByteArray("QVector<QByteArray>"));
#endif
    }

    void networkText_data()
    {
        columns<quint32, QString>("id", "text");

        row("country and operator", quint32(266243),
            "260003 Polska Orange / PTK Centertel Sp. z o.o.");
        row("all operators", quint32((260u << 10) | 998u), "260998 Polska Wszystkie");
        row("small number padded", quint32(5), "000005 Nieznany Nieznany");
        row("country above 999", quint32(1000u << 10), "1000000 Nieznany Nieznany");
    }

    void networkText()
    {
        auto [id, text] = fetch<quint32, QString>("id", "text");
        QCOMPARE(::networkText(id), text);
    }

    void looksAsStock_data()
    {
        // change: made after the pixmaps were kept
        // kept: whether the rows can be kept at all
        columns<QString, QString, bool>("setup", "change", "kept");

        row("unpainted", "", "", true);
        row("four states", "paint", "", true);
        row("current", "paint current", "", true);
        row("focused", "paint current focus", "", true);
        row("hovered", "paint hover", "", true);
        row("disabled", "paint disabled", "", true);
        row("elided", "paint narrow", "", true);
        row("alternating", "alternate", "", true);
        row("right to left", "paint rtl", "", true);
        row("palette changed", "paint current", "palette", true);
        row("font changed", "paint", "font", true);
        row("style sheet", "paint", "sheet", true);
        row("state changed", "paint", "invalid", true);
        row("icons", "paint icon", "", false);
        row("see-through viewport", "paint unfilled", "", false);
    }

    void looksAsStock()
    {
        auto [setup, change, kept] = fetch<QString, QString, bool>("setup", "change", "kept");

        TestHost host;
        host.add(ref, 20,
                 QVariant::fromValue(QVector<QByteArray>{"alfa", "beta", "gamma", "",
                                                         "delta epsilon zeta eta theta"}))
            .capacity = 5;
        host.storedItemsOf[ref] = {QByteArray("gamma")};
        host.invalidItemsOf[ref] = {0};
        host.modifiedItemsOf[ref] = {1};
        CfgListWidget list;
        list.resize(setup.contains("narrow") ? 90 : 220, 140);
        list.setReference(&host, ref, nullptr, {});
        list.item(2)->setSelected(true);
        list.remove(ref); // gamma stays, grey
        if (setup.contains("paint"))
            list.updateControl(0);
        if (setup.contains("current"))
            list.setCurrentRow(1);
        if (setup.contains("alternate"))
            list.setAlternatingRowColors(true);
        if (setup.contains("rtl"))
            list.setLayoutDirection(Qt::RightToLeft);
        for (int row = 0; setup.contains("icon") && row < list.count(); ++row)
            list.item(row)->setIcon(list.style()->standardIcon(QStyle::SP_DialogOkButton));
        if (setup.contains("unfilled"))
            list.viewport()->setAutoFillBackground(false);
        if (setup.contains("disabled"))
            list.QWidget::setEnabled(false);
        if (setup.contains("hover"))
            list.setMouseTracking(true);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        if (setup.contains("focus")) {
            list.activateWindow();
            list.setFocus();
            QVERIFY(QTest::qWaitForWindowActive(&list));
        }
        if (setup.contains("hover"))
            QTest::mouseMove(list.viewport(), list.visualItemRect(list.item(1)).center());

        auto *caching = qobject_cast<CachingItemDelegate *>(list.itemDelegate());
        QVERIFY(caching);
        shot(list); // fills the store
        QCOMPARE(caching->keptCount() > 0, kept);

        if (change == "palette") {
            QPalette palette = list.palette();
            palette.setColor(QPalette::Text, Qt::darkGreen);
            list.setPalette(palette);
        } else if (change == "font") {
            QFont font = list.font();
            font.setPointSize(font.pointSize() + 5);
            font.setItalic(true);
            list.setFont(font);
        } else if (change == "sheet") {
            list.setStyleSheet("QListView::item { padding-left: 9px; }");
        } else if (change == "invalid") {
            host.invalidItemsOf[ref] = {1};
            list.updateControl(0);
        }
        QCoreApplication::processEvents();

        const QImage cached = shot(list);
        StateCueDelegate stock; // the stock painting with the element's corner cue
        list.setItemDelegate(&stock);
        const QImage drawn = shot(list);
        list.setItemDelegate(caching);
        QVERIFY(!drawn.isNull());
        QCOMPARE(cached, drawn);
    }
};

QTEST_MAIN(TestCfgListWidget)
#include "tst_cfglistwidget.moc"
