// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcombobox.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>
#include <functional>

using Options = QMap<int, QPair<QString, QString>>;
Q_DECLARE_METATYPE(Options)
using HostAction = std::function<void(CfgComboBox &)>;
Q_DECLARE_METATYPE(HostAction)

namespace {
QString sheet(const char *colour)
{
    return QStringLiteral("QComboBox{background-color: ") + QLatin1String(colour) +
           QStringLiteral("; border:1px solid; \t\t\t\t\t\t\tborder-radius:2px; padding:1px;"
                          "color: black; border-color: rgb(130,130,130); } \t\t\t\t\t\t\t"
                          "QComboBox::drop-down{border:0px solid black; padding:1px;color: "
                          "white; border-width:0px; }\t\t\t\t\t\t\tQComboBox::down-arrow "
                          "{image: url(:images/arrow.png)};");
}

Options speeds()
{
    return {{0, {"125 kbit/s", "125"}}, {1, {"250 kbit/s", "250"}}, {2, {"500 kbit/s", "500"}}};
}
} // namespace

class TestCfgComboBox : public TestCase
{
    Q_OBJECT

private slots:
    void filling_data()
    {
        columns<Options, QVariant, QStringList, QStringList, int>("options", "value", "texts",
                                                                  "values", "current");

        row("contiguous", speeds(), QVariant("250"),
            QStringList{"125 kbit/s", "250 kbit/s", "500 kbit/s"}, QStringList{"125", "250", "500"},
            1);
        QTest::newRow("value held as bytes finds its text") // on Qt 6 as on Qt 5
            << speeds() << QVariant(QByteArray("500"))
            << QStringList{"125 kbit/s", "250 kbit/s", "500 kbit/s"}
            << QStringList{"125", "250", "500"} << 2;
        row("gap leaves blank, key past end lost",
            Options{{0, {"A", "a"}}, {1, {"B", "b"}}, {3, {"F", "f"}}}, QVariant("f"),
            QStringList{"A", "B", ""}, QStringList{"a", "b", ""}, 0);
    }

    void filling()
    {
        auto [options, value, texts, values, current] =
            fetch<Options, QVariant, QStringList, QStringList, int>("options", "value", "texts",
                                                                    "values", "current");

        TestHost host;
        MainConfigObject &object = host.add(10, 0, value);
        object.options = options;
        CfgComboBox combo;
        combo.addItem(QStringLiteral("stale"));
        QSignalSpy changedSpy(&combo, SIGNAL(cfgComboBoxChanged()));
        combo.setReference(&host, 10, nullptr, {});

        QStringList shownTexts, shownValues;
        for (int i = 0; i < combo.count(); ++i) {
            shownTexts << combo.itemText(i);
            shownValues << combo.itemData(i).toString();
        }
        QCOMPARE(shownTexts, texts);
        QCOMPARE(shownValues, values);
        QCOMPARE(combo.currentIndex(), current);
        // Filling the list is not an edit.
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(changedSpy.count(), 0);
    }

    void colour_data()
    {
        columns<bool, bool, bool, QString>("error", "enabled", "matchesStored", "expected");

        row("stored, enabled", false, true, true, sheet("white"));
        row("stored, disabled", false, false, true, sheet("#f1f1f1"));
        row("changed, disabled", false, false, false, sheet("#ffff8e"));
        row("error wins, enabled", true, true, false, sheet("red"));
    }

    void colour()
    {
        auto [error, enabled, matchesStored, expected] =
            fetch<bool, bool, bool, QString>("error", "enabled", "matchesStored", "expected");

        TestHost host;
        host.add(10, 0, "250").options = speeds();
        host.stored[10] = matchesStored ? QVariant("250") : QVariant("500");
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.setEnabled(enabled);
        combo.setError(error);
        combo.updateControl(1);
        QCOMPARE(combo.styleSheet(), expected);
    }

    // An enabled refresh leaves every item white, whatever the host did to the list since
    // the last one.
    void itemsStayWhite_data()
    {
        QTest::addColumn<HostAction>("action");
        const auto red = [](QStandardItem *item) {
            item->setBackground(Qt::red);
            return item;
        };
        row("item recoloured", HostAction([](CfgComboBox &combo) {
                combo.setItemData(1, QColor(Qt::red), Qt::BackgroundRole);
            }));
        row("coloured row added", HostAction([red](CfgComboBox &combo) {
                qobject_cast<QStandardItemModel *>(combo.model())
                    ->appendRow(red(new QStandardItem));
            }));
        row("other model", HostAction([red](CfgComboBox &combo) {
                auto *model = new QStandardItemModel(&combo);
                model->appendRow(red(new QStandardItem));
                combo.setModel(model);
            }));
        row("other column", HostAction([red](CfgComboBox &combo) {
                auto *model = qobject_cast<QStandardItemModel *>(combo.model());
                model->setItem(0, 1, red(new QStandardItem));
                combo.updateControl(0);
                combo.setModelColumn(1);
            }));
        row("other root", HostAction([red](CfgComboBox &combo) {
                auto *model = qobject_cast<QStandardItemModel *>(combo.model());
                model->item(0)->appendRow(red(new QStandardItem));
                combo.updateControl(0);
                combo.setRootModelIndex(model->index(0, 0));
            }));
    }

    void itemsStayWhite()
    {
        QFETCH(HostAction, action);
        TestHost host;
        host.add(10, 0, "250").options = speeds();
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.updateControl(1);
        action(combo);
        combo.updateControl(0);
        QVERIFY(combo.count() > 0);
        for (int i = 0; i < combo.count(); ++i)
            QCOMPARE(combo.itemData(i, Qt::BackgroundRole), QVariant(QColor(Qt::white)));
    }

    void keyEditWritesThenSignals()
    {
        TestHost host;
        host.add(10, 0, "125").options = speeds();
        host.stored[10] = QVariant("125");
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});

        QString sheetAtSignal; // emitted after the write and after the refresh
        connect(&combo, &CfgComboBox::cfgComboBoxChanged, this,
                [&] { sheetAtSignal = host.writes.isEmpty() ? "" : combo.styleSheet(); });
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
        combo.setFocus();
        QTest::keyClick(&combo, Qt::Key_Down);

        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("250"));
        QCOMPARE(sheetAtSignal, sheet("yellow"));
    }

    void sameTextWritesFirstValue()
    {
        // Deliberate: the edit finds its entry by the shown text, so of two entries with the
        // same text the first one's value is written whichever the user picked.
        TestHost host;
        host.add(10, 0, "a").options = {{0, {"x", "a"}}, {1, {"y", "b"}}, {2, {"y", "c"}}};
        CfgComboBox combo;
        combo.setReference(&host, 10, nullptr, {});
        combo.setCurrentIndex(2);
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("b"));
    }

    void skipGuardsAndOtherSelections()
    {
        TestHost host;
        host.add(10, 0, "125").options = speeds();
        host.add(11, 0, "500");
        host.stored[10] = QVariant("125");
        CfgComboBox combo;
        QSignalSpy spy(&combo, SIGNAL(cfgComboBoxChanged()));
        combo.setSkip(true);
        combo.setReference(&host, 10, nullptr, {}); // skip survives binding
        combo.updateControl(1);
        combo.updateSelection(11); // selects the entry holding another parameter's value
        QCOMPARE(combo.currentIndex(), 2);
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(spy.count(), 0);

        combo.setSkip(false);
        combo.updateSelection(10); // without skip the change is written
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value, QVariant("125"));
        QCOMPARE(spy.count(), 1);
    }
};

QTEST_MAIN(TestCfgComboBox)
#include "tst_cfgcombobox.moc"
