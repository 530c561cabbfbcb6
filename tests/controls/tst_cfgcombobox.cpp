#include "telecfg/controls/cfgcombobox.h"
#include "tests/support/testhost.h"

#include <QSignalSpy>
#include <QtTest>

using Options = QMap<int, QPair<QString, QString>>;
Q_DECLARE_METATYPE(Options)

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
const QStringList speedTexts{"125 kbit/s", "250 kbit/s", "500 kbit/s"};
const QStringList speedValues{"125", "250", "500"};
} // namespace

class TestCfgComboBox : public QObject
{
    Q_OBJECT

private slots:
    void filling_data();
    void filling();
    void colour_data();
    void colour();
    void keyEditWritesThenSignals();
    void skipGuardsAndOtherSelections();
    void sameTextWritesFirstValue();
    void itemBackgrounds();
};

void TestCfgComboBox::filling_data()
{
    QTest::addColumn<Options>("options");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<int>("current");

    QTest::newRow("contiguous") << speeds() << QVariant("250") << speedTexts << speedValues << 1;
    QTest::newRow("gap leaves blank, key past end lost")
        << Options{{0, {"A", "a"}}, {1, {"B", "b"}}, {5, {"F", "f"}}} << QVariant("f")
        << QStringList{"A", "B", ""} << QStringList{"a", "b", ""} << 0;
    QTest::newRow("negative key dropped")
        << Options{{-1, {"X", "x"}}, {0, {"A", "a"}}} << QVariant("a") << QStringList{"A", ""}
        << QStringList{"a", ""} << 0;
    QTest::newRow("no match keeps first")
        << speeds() << QVariant("1000") << speedTexts << speedValues << 0;
    QTest::newRow("match is case sensitive")
        << Options{{0, {"Wył.", "off"}}, {1, {"Wł.", "on"}}} << QVariant("ON")
        << QStringList{"Wył.", "Wł."} << QStringList{"off", "on"} << 0;
    QTest::newRow("empty options")
        << Options() << QVariant("1") << QStringList() << QStringList() << -1;
    QTest::newRow("wrong value type")
        << speeds() << QVariant(QSize(250, 1)) << speedTexts << speedValues << 0;
}

void TestCfgComboBox::filling()
{
    QFETCH(Options, options);
    QFETCH(QVariant, value);
    QFETCH(QStringList, texts);
    QFETCH(QStringList, values);
    QFETCH(int, current);

    TestHost host;
    MainConfigObject &object = host.add(10, 0, value);
    object.options = options;
    CfgComboBox combo;
    combo.addItem(QStringLiteral("stale"));
    QSignalSpy changedSpy(&combo, SIGNAL(cfgComboBoxChanged()));
    combo.setReference(&host, 10, nullptr, {});

    QCOMPARE(combo.count(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
        QCOMPARE(combo.itemText(i), texts[i]);
        QCOMPARE(combo.itemData(i).userType(), int(QMetaType::QString));
        QCOMPARE(combo.itemData(i).toString(), values[i]);
    }
    QCOMPARE(combo.currentIndex(), current);
    // Filling the list is not an edit.
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(changedSpy.count(), 0);
}

void TestCfgComboBox::colour_data()
{
    QTest::addColumn<bool>("error");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("matchesStored");
    QTest::addColumn<bool>("emptyList");
    QTest::addColumn<QString>("expected");

    QTest::newRow("stored, enabled") << false << true << true << false << sheet("white");
    QTest::newRow("stored, disabled") << false << false << true << false << sheet("#f1f1f1");
    QTest::newRow("changed, enabled") << false << true << false << false << sheet("yellow");
    QTest::newRow("changed, disabled") << false << false << false << false << sheet("#ffff8e");
    QTest::newRow("error wins, enabled") << true << true << false << false << sheet("red");
    QTest::newRow("error, stored") << true << true << true << false << sheet("red");
    QTest::newRow("empty list is white") << false << true << false << true << sheet("white");
}

void TestCfgComboBox::colour()
{
    QFETCH(bool, error);
    QFETCH(bool, enabled);
    QFETCH(bool, matchesStored);
    QFETCH(bool, emptyList);
    QFETCH(QString, expected);

    TestHost host;
    host.add(10, 0, "250").options = emptyList ? Options() : speeds();
    host.stored[10] = matchesStored ? QVariant("250") : QVariant("500");
    CfgComboBox combo;
    combo.setReference(&host, 10, nullptr, {});
    combo.setEnabled(enabled);
    combo.setError(error);
    combo.updateControl(1);
    QCOMPARE(combo.styleSheet(), expected);
}

void TestCfgComboBox::keyEditWritesThenSignals()
{
    TestHost host;
    host.add(10, 0, "125").options = speeds();
    host.stored[10] = QVariant("125");
    CfgComboBox combo;
    combo.setReference(&host, 10, nullptr, {});
    combo.updateControl(1);
    QCOMPARE(combo.styleSheet(), sheet("white"));

    int writesAtSignal = -1;
    QString sheetAtSignal;
    connect(&combo, &CfgComboBox::cfgComboBoxChanged, this, [&] {
        writesAtSignal = host.writes.size();
        sheetAtSignal = combo.styleSheet();
    });
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);

    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].ref, 10);
    QCOMPARE(host.writes[0].value.userType(), int(QMetaType::QString));
    QCOMPARE(host.writes[0].value, QVariant("250"));
    // Emitted after the write and after the refresh.
    QCOMPARE(writesAtSignal, 1);
    QCOMPARE(sheetAtSignal, sheet("yellow"));
}

void TestCfgComboBox::skipGuardsAndOtherSelections()
{
    TestHost host;
    host.add(10, 0, "125").options = speeds();
    host.add(11, 0, "500");
    host.add(12, 0, "999");
    host.stored[10] = QVariant("125");
    CfgComboBox combo;
    QSignalSpy spy(&combo, SIGNAL(cfgComboBoxChanged()));
    combo.setCurrentIndex(-1); // unbound: nothing happens
    combo.updateSelection(11);
    combo.setSkip(true);
    combo.setReference(&host, 10, nullptr, {}); // skip survives binding
    combo.updateControl(1);
    combo.setCurrentIndex(1);
    combo.updateSelection(11); // selects the entry holding another parameter's value
    QCOMPARE(combo.currentIndex(), 2);
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(combo.styleSheet(), sheet("white")); // not refreshed either

    combo.setSkip(false);
    combo.updateSelection(12); // no such entry: the selection stays
    QCOMPARE(combo.currentIndex(), 2);
    combo.updateSelection(10); // without skip the change is written
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].value, QVariant("125"));
    QCOMPARE(spy.count(), 1);
    // Emptying the list changes to a text no item has: nothing is written.
    combo.clear();
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(spy.count(), 1);
}

void TestCfgComboBox::sameTextWritesFirstValue()
{
    TestHost host;
    host.add(10, 0, "a").options = {{0, {"Ten sam", "a"}}, {1, {"Ten sam", "b"}}, {2, {"", ""}}};
    CfgComboBox combo;
    combo.setReference(&host, 10, nullptr, {});
    combo.setCurrentIndex(1); // deliberately the first item with that text
    combo.setCurrentIndex(2); // a blank gap item still writes its empty value
    QCOMPARE(host.writes.size(), 2);
    QCOMPARE(host.writes[0].value, QVariant("a"));
    QCOMPARE(host.writes[1].value, QVariant(QString("")));
}

void TestCfgComboBox::itemBackgrounds()
{
    TestHost host;
    host.add(10, 0, "125").options = speeds();
    CfgComboBox combo;
    combo.setReference(&host, 10, nullptr, {});
    combo.setItemData(1, QColor(Qt::red), Qt::BackgroundRole);
    combo.setEnabled(false); // a disabled control leaves its items alone
    QCOMPARE(combo.itemData(1, Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
    combo.setEnabled(true);
    for (int i = 0; i < combo.count(); ++i)
        QCOMPARE(combo.itemData(i, Qt::BackgroundRole).value<QColor>(), QColor(Qt::white));
}

QTEST_MAIN(TestCfgComboBox)
#include "tst_cfgcombobox.moc"
