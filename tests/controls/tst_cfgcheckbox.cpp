// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgcheckbox.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QtTest>

class TestCfgCheckBox : public TestCase
{
    Q_OBJECT

private slots:
    void bindAndEdit_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("shown"); // checked after binding
        QTest::addColumn<bool>("partialIsChecked");
        QTest::addColumn<int>("state"); // then set by the user
        QTest::addColumn<QVariant>("written");

        QTest::newRow("bool off") << 1 << QVariant(true) << true << false << 0 << QVariant(false);
        QTest::newRow("bool partial")
            << 1 << QVariant(true) << true << false << 1 << QVariant(false);
        QTest::newRow("bool partial on")
            << 1 << QVariant(false) << false << true << 1 << QVariant(true);
        QTest::newRow("7 partial on") << 22 << QVariant(7) << true << true << 1 << QVariant(1);
        QTest::newRow("0 on") << 22 << QVariant(0) << false << false << 2 << QVariant(1);
        QTest::newRow("text off") << 22 << QVariant("1") << true << true << 0 << QVariant(0);
        QTest::newRow("text true")
            << 0 << QVariant("true") << true << false << 1 << QVariant(false);
        QTest::newRow("list") << 22 << QVariant(QStringList{"x"}) << false << false << 2
                              << QVariant(1);
    }

    void bindAndEdit()
    {
        QFETCH(int, type);
        QFETCH(QVariant, value);
        QFETCH(bool, shown);
        QFETCH(bool, partialIsChecked);
        QFETCH(int, state);
        QFETCH(QVariant, written);

        TestHost host;
        host.add(10, type, value).partialIsChecked = partialIsChecked;
        CfgCheckBox box;
        box.setTristate(true);
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE(box.checkState(), shown ? Qt::Checked : Qt::Unchecked);
        host.writes.clear();
        box.setCheckState(Qt::CheckState(state));
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value.userType(), written.userType());
        QCOMPARE(host.writes[0].value, written);
    }

    void styleSheets_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("modified");
        QTest::addColumn<QString>("sheet");

        // The four indicator images of one look ("grey", "yellow_..._disabled", ...).
        auto sheet = [](const char *colour, const char *suffix, const char *sep) {
            return QString::asprintf(
                "QCheckBox::indicator:unchecked {image: "
                "url(:/images/checkbox_%s_unchecked%s.png);}%s"
                "QCheckBox::indicator:checked {image: url(:/images/checkbox_%s_checked%s.png);}%s"
                "QCheckBox::indicator:unchecked:hover {image: "
                "url(:/images/checkbox_unchecked_hover.png);}%s"
                "QCheckBox::indicator:checked:hover {image: "
                "url(:/images/checkbox_checked_hover.png);}",
                colour, suffix, sep, colour, suffix, sep, sep);
        };
        const char *six = "\t\t\t\t\t\t  ";
        QTest::newRow("enabled") << true << false << sheet("grey", "", six);
        QTest::newRow("enabled modified") << true << true << sheet("yellow", "", six);
        QTest::newRow("disabled") << false << false << sheet("grey", "_disabled", six);
        QTest::newRow("disabled modified")
            << false << true << sheet("yellow", "_disabled", "\t\t\t\t\t  ");
    }

    void styleSheets()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, modified);
        QFETCH(QString, sheet);

        TestHost host;
        host.add(10, 1, true);
        if (modified)
            host.modified.insert(10);
        CfgCheckBox box;
        box.setReference(&host, 10, nullptr, {});
        box.setEnabled(enabled);
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), sheet);
    }
};

QTEST_MAIN(TestCfgCheckBox)
#include "tst_cfgcheckbox.moc"
