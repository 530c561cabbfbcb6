// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The list's kept item pixmaps must show exactly what the stock item painting draws, in every
// state an item can be shown in, and after the view's look changes.
#include "telecfg/collections/cachingitemdelegate_p.h"
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/valuetypes.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QStyledItemDelegate>
#include <QtTest>

namespace {
const int ref = 40;

QImage shot(QWidget &widget)
{
    return widget.grab().toImage();
}
} // namespace

class TestCachingItemDelegate : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { allowListConnectionWarning(); }
    void looksAsStock_data();
    void looksAsStock();
};

void TestCachingItemDelegate::looksAsStock_data()
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

void TestCachingItemDelegate::looksAsStock()
{
    auto [setup, change, kept] = fetch<QString, QString, bool>("setup", "change", "kept");

    TestHost host;
    host.add(ref, 20,
             QVariant::fromValue(
                 QVector<QByteArray>{"alfa", "beta", "gamma", "", "delta epsilon zeta eta theta"}))
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

QTEST_MAIN(TestCachingItemDelegate)
#include "tst_cachingitemdelegate.moc"
