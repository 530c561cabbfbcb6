// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/cachingitemdelegate_p.h"
#include "telecfg/collections/cfglisteditor.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "tests/support/anycontrol.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractItemView>
#include <QBrush>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using Grid = QStringList;

namespace {
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
bool editInPlace(QAbstractItemView &view, const QRect &rect, const QString &text)
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

const int ref = 40;
const QString network = QStringLiteral("260003 Polska Orange / PTK Centertel Sp. z o.o.");

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

// The list's kept item pixmaps must show exactly what the stock item painting
// draws, in every state an item can be shown in, and after the view's look
// changes.
QImage shot(QWidget &widget)
{
    return widget.grab().toImage();
}

const int tableRef = 60;

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

// A table bound to parameter `tableRef`: `shown` columns, `filled` of them filled from the value.
struct TableBound
{
    TestHost host;
    CfgTableWidget table;
    TableBound(const QVariant &value, int capacity, const QVariantList &stored = {}, int shown = 2,
               int filled = 2)
    {
        MainConfigObject &object = host.add(tableRef, 0, value);
        object.columnListA = QVariant::fromValue(QVector<uint>(filled).toList());
        object.columnListB = QVariant::fromValue(QVector<uint>(shown).toList());
        object.capacity = capacity;
        object.columnTitles = QStringList{"Poziom", "Objętość"};
        host.storedItemsOf[tableRef] = stored;
        table.setSelectionMode(QAbstractItemView::MultiSelection);
        table.setReference(&host, tableRef, nullptr, {});
    }
};

// What the input dialog offers: "int 1-65535", "double 1-4294967295", "names a|b", "text 8"
// (the line edit's length; "-" for none), "network" for the country and operator dialog.
QString offered(QWidget *modal)
{
    auto *dialog = qobject_cast<QInputDialog *>(modal);
    if (!dialog)
        return modal->findChild<QLineEdit *>(QStringLiteral("leCountry")) ? "network" : "?";
    switch (dialog->inputMode()) {
    case QInputDialog::IntInput:
        return QStringLiteral("int %1-%2").arg(dialog->intMinimum()).arg(dialog->intMaximum());
    case QInputDialog::DoubleInput:
        return QStringLiteral("double %1-%2")
            .arg(dialog->doubleMinimum(), 0, 'f', 0)
            .arg(dialog->doubleMaximum(), 0, 'f', 0);
    case QInputDialog::TextInput:
        break;
    }

    if (!dialog->comboBoxItems().isEmpty())
        return "names " + dialog->comboBoxItems().join('|');
    const int length = dialog->findChild<QLineEdit *>()->maxLength();
    return "text " + (length == 32767 ? QStringLiteral("-") : QString::number(length));
}

// Plays the user: gives `answer` to the input (a network as "country/operator") and presses
// OK where it is enabled; a null answer, or a disabled OK, cancels.
void answer(QWidget *modal, const QString &answer)
{
    auto *dialog = qobject_cast<QDialog *>(modal);
    QPushButton *ok = nullptr;
    if (auto *input = qobject_cast<QInputDialog *>(modal)) {
        if (input->inputMode() == QInputDialog::IntInput)
            input->setIntValue(answer.toInt());
        else if (input->inputMode() == QInputDialog::DoubleInput)
            input->setDoubleValue(answer.toDouble());
        else
            input->setTextValue(answer);
        ok = input->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    } else {
        const QStringList codes = answer.split('/');
        modal->findChild<QLineEdit *>(QStringLiteral("leCountry"))->setText(codes.value(0));
        modal->findChild<QLineEdit *>(QStringLiteral("leOperator"))->setText(codes.value(1));
        ok = modal->findChild<QPushButton *>(QStringLiteral("pbOK"));
    }

    if (answer.isNull() || !ok->isEnabled())
        dialog->reject();
    else
        ok->click();
}
} // namespace

class TestCollections : public TestCase
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
            QVERIFY(editInPlace(b.list, first, input.toString()));
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

        TableBound b(value, capacity, {QByteArray("1")}, columns, columns);
        b.table.setRowCount(5);
        b.table.setReference(&b.host, tableRef, nullptr, {}); // the old rows go
        QStringList headers;
        for (int column = 0; column < b.table.columnCount(); ++column)
            headers << b.table.horizontalHeaderItem(column)->text();
        QCOMPARE(headers.join('|'), titles);
        QCOMPARE(gridOf(b.table), grid);

        ModalCatcher catcher;
        b.table.selectAll();
        QCOMPARE(b.table.remove(tableRef), capacity != 0); // true while there are any places
        b.table.addValue(QVariant(QStringList{"1", "11", "111"}), tableRef);
        b.table.addValue(QVariant(QStringList{"9"}), tableRef);
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

        TableBound b(table(value), capacity, stored);
        ModalCatcher catcher;
        if (cell.x() < 0) {
            if (cell.y() >= 0)
                b.table.setCurrentCell(cell.y(), 0);
            QCOMPARE(b.table.addValue(input, tableRef), message.isEmpty() ? 0 : 1);
        } else if (input.toString().startsWith("remove")) {
            b.table.item(cell.y(), cell.x())->setSelected(true);
            if (input == "remove row")
                b.table.item(cell.y(), 1 - cell.x())->setSelected(true);
            QVERIFY(b.table.remove(tableRef));
        } else {
            b.table.show();
            QVERIFY(QTest::qWaitForWindowExposed(&b.table));
            const QRect rect = b.table.visualItemRect(b.table.item(cell.y(), cell.x()));
            QVERIFY(editInPlace(b.table, rect, input.toString()));
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
        TableBound b(table({"1|2", "10|20"}), 2, {QByteArray("1")});
        b.table.item(0, 1)->setSelected(true);
        QVERIFY(b.table.remove(tableRef));
        QCOMPARE(b.host.writes.size(), 2);
        QCOMPARE(colourOf(b.table.item(0, 1)), QStringLiteral("#a0a0a4"));
        QCOMPARE(b.table.item(0, 0)->toolTip(), QStringLiteral("Usunięty element"));
        QCOMPARE(b.table.item(0, 1)->toolTip(), QString());
        // A grey row is not removed again; adding its identifier brings it back.
        b.host.writes.clear();
        QVERIFY(b.table.remove(tableRef));
        QVERIFY(b.host.writes.isEmpty());
        QCOMPARE(b.table.addValue(QVariant(QStringList{"1", "11"}), tableRef), 0);
        QCOMPARE(gridOf(b.table), (Grid{"1|11", "2|20"}));
        QCOMPARE(b.host.writes.last().value, table({"1|2", "11|20"}));
        QCOMPARE(colourOf(b.table.item(0, 1)), QStringLiteral("#ffffff"));

        // Painting stops at the first missing cell and goes on once it is back.
        b.host.invalidItemsOf[tableRef] = {0};
        b.host.modifiedItemsOf[tableRef] = {0, 1};
        delete b.table.takeItem(0, 1);
        b.table.updateControl(0);
        QCOMPARE(colourOf(b.table.item(0, 0)), QStringLiteral("#ff0000"));
        QCOMPARE(b.table.item(0, 0)->toolTip(), QStringLiteral("Nieprawidłowy element"));
        QCOMPARE(colourOf(b.table.item(1, 0)), QStringLiteral("#ffffff"));
        b.table.setItem(0, 1, new QTableWidgetItem("x"));
        b.table.updateControl(0);
        QCOMPARE(colourOf(b.table.item(1, 1)), QStringLiteral("#ffff00"));
    }

    void addAsksByElementType_data()
    {
        // bounds: the record's minimum and maximum
        // maxLength: the table's rule
        // answer: null cancels
        columns<int, QVariant, QVariant, QVariantList, int, QString, QString, QVariant>(
            "type", "value", "names", "bounds", "maxLength", "offered", "answer", "after");

        const QVariant none;
        const QVariantList no{QVariant(), QVariant()};
        const QVariant u16 = vec<quint16>({0, 0});
        const QVariant u32 = vec<quint32>({0, 0});
        const QVariant field = vec<QByteArray>({QByteArray(8, '\0'), "X"});
        const QVariant texts = vec<QString>({"", ""});
        const QVariant named = QVariant::fromValue(QList<NamedUInt>{{7, "Jan"}, {9, "Anna"}});
        row("8: number", 8, u16, none, no, -1, "int 1-65535", "300", vec<quint16>({300, 0}));
        row("8: the record's bounds", 8, u16, none, QVariantList{10, 70000}, -1, "int 10-65535",
            "12", vec<quint16>({12, 0}));
        row("24: every 32-bit number", 24, u32, none, no, -1, "double 1-4294967295", "4000000000",
            vec<quint32>({4000000000u, 0}));
        row("24: by name", 24, u32, named, no, -1, "names Jan|Anna", "Anna", vec<quint32>({9, 0}));
        row("24: cancelled", 24, u32, none, no, -1, "double 1-4294967295", QString(), u32);
        row("20: field size of a free place", 20, field, none, no, -1, "text 8", "AB",
            vec<QByteArray>({"AB", "X"}));
        // Eight characters, but sixteen bytes: more than the field holds.
        row("20: too long in bytes", 20, field, none, no, -1, "text 8", "ąąąąąąąą", field);
        row("13: the table's length", 13, texts, none, no, 5, "text 5", "abc",
            vec<QString>({"abc", ""}));
        row("13: empty refused", 13, texts, none, no, -1, "text -", "", texts);
        row("29: network", 29, u32, none, no, -1, "network", "260/3", vec<quint32>({266243, 0}));
        // Network 0 marks a free place.
        row("29: network 0", 29, u32, none, no, -1, "network", "0/0", u32);
    }

    void addAsksByElementType()
    {
        auto [type, value, names, bounds, maxLength, offered, answer, after] =
            fetch<int, QVariant, QVariant, QVariantList, int, QString, QString, QVariant>(
                "type", "value", "names", "bounds", "maxLength", "offered", "answer", "after");

        ParameterTable table;
        MainConfigObject record;
        record.type = type;
        record.value = value;
        record.capacity = 2;
        record.valueNames = names;
        record.minimum = bounds.at(0);
        record.maximum = bounds.at(1);
        table.addRecord(ref, record);
        ParameterTable::Rules rules;
        rules.maxLength = maxLength;
        table.setRules(ref, rules);
        MainConfigIFace *iface = &table;
        CfgListEditor editor;
        editor.setReference(iface, ref, nullptr, {});
        editor.updateControl(0);
        const int before = editor.list()->count();

        QString seen;
        ModalCatcher catcher([&, answer = answer](QWidget *modal) {
            seen = ::offered(modal);
            ::answer(modal, answer);
        });
        QTest::mouseClick(editor.addButton(), Qt::LeftButton);
        QCOMPARE(seen, offered);
        QCOMPARE(iface->value(ref), after);
        QCOMPARE(editor.list()->count(), before + (after != value ? 1 : 0));
    }

    void buttons_data()
    {
        // op: "select", "disable", "gate", "list off" (the host disables the list), "unbind"
        columns<QVariant, QString, bool, bool, QString>("value", "op", "add", "remove", "addTip");

        const QVariant room = vec<quint32>({5, 0});
        const QVariant full = vec<quint32>({5, 6});
        row("room, nothing selected", room, "", true, false, "");
        row("full", full, "", false, false, "Lista jest pełna");
        row("selected", full, "select", false, true, "Lista jest pełna");
        row("disabled", room, "select disable", false, false, "");
        row("gate closed", room, "select gate", false, false, "");
        row("list disabled", room, "select list off", false, false, "");
        row("unbound", room, "unbind", false, false, "");
    }

    void buttons()
    {
        auto [value, op, add, remove, addTip] =
            fetch<QVariant, QString, bool, bool, QString>("value", "op", "add", "remove", "addTip");

        TestHost host;
        host.add(ref, 24, value).capacity = 2;
        CfgListEditor editor;
        editor.setReference(&host, ref, nullptr, {});
        if (op.contains("select"))
            editor.list()->item(0)->setSelected(true);
        if (op.contains("disable"))
            editor.setEnabled(false);
        if (op.contains("gate"))
            editor.updateEnableState(false);
        if (op.contains("list off"))
            editor.list()->setEnabled(false);
        if (op.contains("unbind"))
            editor.setReference(nullptr, ref, nullptr, {});
        QCOMPARE(editor.addButton()->isEnabled(), add);
        QCOMPARE(editor.removeButton()->isEnabled(), remove);
        QCOMPARE(editor.addButton()->toolTip(), addTip);
    }

    void buttonsFollowTheList()
    {
        TestHost host;
        host.add(ref, 24, vec<quint32>({5, 6})).capacity = 2;
        CfgListEditor editor;
        editor.setReference(&host, ref, nullptr, {});
        QVERIFY(!editor.addButton()->isEnabled());
        editor.list()->item(0)->setSelected(true);
        QTest::mouseClick(editor.removeButton(), Qt::LeftButton);
        QCOMPARE(host.value(ref), vec<quint32>({0, 6}));
        QVERIFY(editor.addButton()->isEnabled());
        // The host's own calls on the list, with no change of selection: the buttons follow once
        // events are processed.
        editor.list()->addValue(7u, ref);
        editor.list()->clearSelection();
        QTRY_VERIFY(!editor.addButton()->isEnabled());
        editor.list()->removeAll(ref);
        QCOMPARE(host.value(ref), vec<quint32>({0, 0}));
        QTRY_VERIFY(editor.addButton()->isEnabled());
    }
};

QTEST_MAIN(TestCollections)
#include "tst_collections.moc"
