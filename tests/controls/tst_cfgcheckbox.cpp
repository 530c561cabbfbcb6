#include "telecfg/controls/cfgcheckbox.h"
#include "tests/support/testhost.h"

#include <QtTest>

class TestCfgCheckBox : public QObject
{
    Q_OBJECT

private slots:
    void bindingShowsValue_data();
    void bindingShowsValue();
    void userEditWrites_data();
    void userEditWrites();
    void styleSheets_data();
    void styleSheets();
    void clickRefreshesColour();
};

void TestCfgCheckBox::bindingShowsValue_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");

    QTest::newRow("bool true") << 1 << QVariant(true) << true;
    QTest::newRow("bool false") << 1 << QVariant(false) << false;
    QTest::newRow("type 22, 7") << 22 << QVariant(7) << true;
    QTest::newRow("type 22, 0") << 22 << QVariant(0) << false;
    QTest::newRow("type 22, text 1") << 22 << QVariant("1") << true;
    QTest::newRow("bool from text") << 0 << QVariant("true") << true;
    QTest::newRow("invalid value") << 0 << QVariant() << false;
    QTest::newRow("wrong type: list") << 22 << QVariant(QStringList{"x"}) << false;
}

void TestCfgCheckBox::bindingShowsValue()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(bool, checked);

    TestHost host;
    host.add(10, type, value);
    CfgCheckBox box;
    box.setReference(&host, 10, nullptr, {});
    QCOMPARE(box.checkState(), checked ? Qt::Checked : Qt::Unchecked);
    QCOMPARE(box.getReference(), 10);
}

void TestCfgCheckBox::userEditWrites_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("partialIsChecked");
    QTest::addColumn<int>("state");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("bool checked") << 1 << false << 2 << QVariant(true);
    QTest::newRow("bool unchecked") << 1 << false << 0 << QVariant(false);
    QTest::newRow("bool partial, clear") << 1 << false << 1 << QVariant(false);
    QTest::newRow("bool partial, set") << 1 << true << 1 << QVariant(true);
    QTest::newRow("int checked") << 22 << false << 2 << QVariant(1);
    QTest::newRow("int partial, clear") << 22 << false << 1 << QVariant(0);
    QTest::newRow("int partial, set") << 22 << true << 1 << QVariant(1);
    QTest::newRow("int unchecked, set") << 22 << true << 0 << QVariant(0);
}

void TestCfgCheckBox::userEditWrites()
{
    QFETCH(int, type);
    QFETCH(bool, partialIsChecked);
    QFETCH(int, state);
    QFETCH(QVariant, expected);

    TestHost host;
    host.add(10, type, state == 0).partialIsChecked = partialIsChecked;
    CfgCheckBox box;
    box.setTristate(true);
    box.setReference(&host, 10, nullptr, {});
    host.writes.clear();
    box.setCheckState(Qt::CheckState(state));
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].ref, 10);
    QCOMPARE(host.writes[0].value.userType(), expected.userType());
    QCOMPARE(host.writes[0].value, expected);
}

void TestCfgCheckBox::styleSheets_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<QString>("sheet");

    // The four indicator images of one look ("grey", "yellow_..._disabled", ...).
    auto sheet = [](const char *colour, const char *suffix, const char *sep) {
        return QString::asprintf(
            "QCheckBox::indicator:unchecked {image: url(:/images/checkbox_%s_unchecked%s.png);}%s"
            "QCheckBox::indicator:checked {image: url(:/images/checkbox_%s_checked%s.png);}%s"
            "QCheckBox::indicator:unchecked:hover {image: "
            "url(:/images/checkbox_unchecked_hover.png);}%s"
            "QCheckBox::indicator:checked:hover {image: url(:/images/checkbox_checked_hover.png);}",
            colour, suffix, sep, colour, suffix, sep, sep);
    };
    const char *six = "\t\t\t\t\t\t  ";
    QTest::newRow("enabled") << true << false << sheet("grey", "", six);
    QTest::newRow("enabled modified") << true << true << sheet("yellow", "", six);
    QTest::newRow("disabled") << false << false << sheet("grey", "_disabled", six);
    QTest::newRow("disabled modified")
        << false << true << sheet("yellow", "_disabled", "\t\t\t\t\t  ");
}

void TestCfgCheckBox::styleSheets()
{
    QFETCH(bool, enabled);
    QFETCH(bool, modified);
    QFETCH(QString, sheet);

    TestHost host;
    host.add(10, 1, true);
    if (modified)
        host.modified.insert(10);
    CfgCheckBox box;
    if (enabled && !modified) // the unbound control already wears the normal sheet
        QCOMPARE(box.styleSheet(), sheet);
    box.setReference(&host, 10, nullptr, {});
    box.setEnabled(enabled);
    box.updateControl(1);
    QCOMPARE(box.styleSheet(), sheet);
}

void TestCfgCheckBox::clickRefreshesColour()
{
    TestHost host;
    host.add(10, 22, 0);
    // The host reports a modified value as soon as it has been written.
    host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
    CfgCheckBox box;
    box.setText(QStringLiteral("Blokada"));
    box.setReference(&host, 10, nullptr, {});
    box.updateControl(1);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QVERIFY(box.styleSheet().contains("checkbox_grey_unchecked.png"));
    QTest::mouseClick(&box, Qt::LeftButton);
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].value, QVariant(1));
    QVERIFY(box.styleSheet().contains("checkbox_yellow_unchecked.png"));
}

QTEST_MAIN(TestCfgCheckBox)
#include "tst_cfgcheckbox.moc"
