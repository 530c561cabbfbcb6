// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// Decimal patterns follow the system locale, which the toolkit reads from the environment
// at start-up: CTest runs this suite once with a point locale and once with a comma one.
#include "telecfg/controls/cfglineedit.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QValidator>
#include <QtTest>

namespace {
const QString red = QStringLiteral("QLineEdit{background: red;}");
const QString yellow = QStringLiteral("QLineEdit{background: yellow;}");
const QString white = QStringLiteral("QLineEdit{background: white;}");

bool pointLocale()
{
    return QLocale::system().decimalPoint() == QLatin1Char('.');
}

// The host logged exactly these values, of these types.
void compareWrites(const TestHost &host, const QVariantList &expected)
{
    QCOMPARE(host.writes.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(host.writes[i].value.userType(), expected[i].userType());
        QCOMPARE(host.writes[i].value, expected[i]);
    }
}
} // namespace

class TestCfgLineEdit : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The widgets' own locale follows the system one, as in a host.
        QLocale::setDefault(QLocale::system());
    }

    // Each pattern's verdict, Intermediate (may still be typed) apart from Invalid (refused as
    // typed): the same on every build, odd escapes included.
    void validators_data()
    {
        columns<int, QString, int>("type", "text", "state");

        const QString sep = pointLocale() ? "." : ",", other = pointLocale() ? "," : ".";
        auto row = [](int type, const QString &text, QValidator::State state) {
            QTest::addRow("type %d: '%s'", type, qPrintable(text)) << type << text << int(state);
        };
        const auto ok = QValidator::Acceptable, partial = QValidator::Intermediate,
                   refused = QValidator::Invalid;
        row(21, "-", partial);
        row(21, "1-", refused);
        row(1, "12", ok);
        row(1, "", partial);
        row(1, "-12", refused);
        row(18, "1" + sep, partial);
        row(18, "1" + sep + "12345", ok);
        row(18, "1" + sep + "123456", refused);
        row(30, "-1" + sep + "5", ok);
        row(30, "-1" + other + "5", refused);
        row(10, "192.168.", partial);
        row(10, "192.168.0.1", ok);
        row(10, "256.1.1.1", refused);
        row(12, "+48600100200", ok);
        row(12, "-1", refused);
        row(12, "123456789012345678901234567890", refused);
        row(16, "Auto 12+", ok);
        row(16, "a_", ok); // "\a-z" is the range from the bell character to z
        row(16, "", partial);
        row(16, "zażółć", refused);
        row(17, "a-b?@#%^*()=_<>,./~`'", ok);
        row(17, "a{b", refused);
        row(0, "anything ~{|}", ok);
    }

    void validators()
    {
        auto [type, text, state] = fetch<int, QString, int>("type", "text", "state");

        TestHost host;
        host.add(10, type, QString());
        CfgLineEdit edit;
        edit.setReference(&host, 10, nullptr, {});
        int pos = 0;
        QCOMPARE(
            int(edit.validator() ? edit.validator()->validate(text, pos) : QValidator::Acceptable),
            state);
    }

    void bindAndEdit_data()
    {
        // echoes: written by binding
        // text: then set as by the user
        // written: invalid: nothing written
        columns<int, QVariant, QString, QVariantList, bool, QString, QVariant, QString>(
            "ref", "value", "shown", "echoes", "error", "text", "written", "sheet");

        row("number echoes as text; text written", 10, QVariant(42u), "42", QVariantList{"42"},
            false, "123", QVariant("123"), yellow);
        row("refused by validator still shown; trailing blank refused", 10, QVariant("12ab"),
            "12ab", QVariantList{"12ab"}, false, "ab ", QVariant(), red);
        row("blank at end not echoed; empty written", 10, QVariant("12 "), "12 ", QVariantList(),
            false, "", QVariant(""), yellow);
        row("error blocks the edit", 10, QVariant("a"), "a", QVariantList{"a"}, true, "123",
            QVariant(), red);
        row("parameter 4 emptied, error", 4, QVariant(0xFFFFFFFFu), "4294967295",
            QVariantList{"4294967295"}, true, "", QVariant(0xFFFFFFFFu), white);
    }

    void bindAndEdit()
    {
        auto [ref, value, shown, echoes, error, text, written, sheet] =
            fetch<int, QVariant, QString, QVariantList, bool, QString, QVariant, QString>(
                "ref", "value", "shown", "echoes", "error", "text", "written", "sheet");

        TestHost host;
        host.add(ref, 1, value);
        host.onWrite = [&](int r, const QVariant &) { host.modified.insert(r); };
        CfgLineEdit edit;
        edit.setReference(&host, ref, nullptr, {});
        QCOMPARE(edit.text(), shown);
        compareWrites(host, echoes);
        host.writes.clear();
        host.modified.clear();
        edit.updateControl(1);
        QCOMPARE(edit.styleSheet(), white);
        edit.setError(error);
        edit.setText(text); // the public slot: an edit like the user's
        compareWrites(host, written.isValid() ? QVariantList{written} : QVariantList());
        QCOMPARE(edit.styleSheet(), sheet);
    }

    void userTyping()
    {
        // Real keys: the validator swallows what its type refuses, every accepted key is a
        // write, and emptying parameter 4 writes its special value.
        TestHost host;
        host.add(4, 1, QVariant(7u));
        CfgLineEdit edit;
        edit.setReference(&host, 4, nullptr, {});
        host.writes.clear();
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClicks(&edit, QStringLiteral("1a2"));
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        compareWrites(host, {QVariant("71"), QVariant("712"), QVariant(0xFFFFFFFFu)});
    }

    void paintingAndDisplayText()
    {
        TestHost host;
        host.add(10, 1, 5u);
        CfgLineEdit edit;
        edit.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        host.invalid.insert(10);
        host.modified.insert(10);
        edit.updateControl(1);
        QCOMPARE(edit.styleSheet(), red); // invalid wins over modified

        host.invalid.clear();
        edit.displayText(QStringLiteral("77")); // shown only: no write, no repaint
        QCOMPARE(edit.displayText(), QStringLiteral("77"));
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(edit.styleSheet(), red);
        edit.setText(QStringLiteral("78")); // still connected afterwards
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(edit.styleSheet(), yellow);
    }
};

QTEST_MAIN(TestCfgLineEdit)
#include "tst_cfglineedit.moc"
