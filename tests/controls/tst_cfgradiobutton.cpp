// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgradiobutton.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QtTest>

namespace {
QString sheet(const char *checkedImage, int blanks)
{
    const QString gap(blanks, QLatin1Char(' '));
    return QStringLiteral("QRadioButton::indicator:unchecked {image: "
                          "url(:/images/radiobutton_unselected.png);}") +
           gap + "QRadioButton::indicator:checked {image: url(:/images/" + checkedImage +
           ".png);}" + gap +
           "QRadioButton::indicator:unchecked:hover {image: "
           "url(:/images/radiobutton_unselected_hover.png);}" +
           gap +
           "QRadioButton::indicator:checked:hover {image: "
           "url(:/images/radiobutton_selected_hover.png);}";
}
const QString normal = sheet("radiobutton_selected_black", 24);
const QString changed = sheet("radiobutton_selected_yellow", 22);
} // namespace

class TestCfgRadioButton : public TestCase
{
    Q_OBJECT

private slots:
    void checkedState_data()
    {
        // select: setSelected(value) instead of binding to it
        // choice: the record's minimum
        columns<bool, int, QVariant, bool, bool, QVariant>("select", "type", "value",
                                                           "checkedBefore", "checked", "choice");

        row("bound, its choice", false, 4, QVariant(2u), false, true, QVariant(2u));
        row("bound, other choice", false, 4, QVariant(3u), true, false, QVariant(2u));
        row("bound, value as text", false, 4, QVariant("2"), false, true, QVariant(2u));
        row("bound, wrong type", false, 4, QVariant(QSize(2, 2)), true, false, QVariant(2u));
        row("bound, other type keeps", false, 1, QVariant(3u), true, true, QVariant(2u));
        row("selected, its choice", true, 4, QVariant(2), false, true, QVariant(2u));
        row("selected, other value", true, 4, QVariant(3), true, false, QVariant(2u));
        row("selected, other type", true, 1, QVariant(2), false, false, QVariant(2u));
        QTest::newRow("bound, choice held as bytes") // on Qt 6 as on Qt 5
            << false << 4 << QVariant(2u) << false << true << QVariant(QByteArray("2"));
        row("selected, choice held as bytes", true, 4, QVariant(2), false, true,
            QVariant(QByteArray("2")));
    }

    void checkedState()
    {
        auto [select, type, value, checkedBefore, checked, choice] =
            fetch<bool, int, QVariant, bool, bool, QVariant>("select", "type", "value",
                                                             "checkedBefore", "checked", "choice");

        TestHost host;
        host.add(10, type, select ? QVariant(0u) : value).minimum = choice;
        host.modified.insert(10);
        CfgRadioButton button;
        button.setAutoExclusive(false); // a lone exclusive button cannot be unchecked
        button.setChecked(checkedBefore);
        if (select)
            button.setSelected(value.toInt()); // unbound: no crash
        button.setReference(&host, 10, nullptr, {});
        if (select) {
            button.setChecked(checkedBefore);
            QCOMPARE(button.styleSheet(), normal); // neither binding nor setChecked repaints
            button.setSelected(value.toInt());
            QCOMPARE(button.styleSheet(), changed); // refreshed in every case
        }
        QCOMPARE(button.isChecked(), checked);
        QVERIFY(host.writes.isEmpty());
    }

    // Pressing an already checked button writes its choice again.
    void pressWritesChoice()
    {
        const QVariant choice(1u);
        TestHost host;
        host.add(10, 4, choice).minimum = choice;
        host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
        CfgRadioButton button;
        button.setReference(&host, 10, nullptr, {});
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));

        // The choice is written on the press, before the button is released.
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value.userType(), choice.userType());
        QCOMPARE(host.writes[0].value, choice);
        QCOMPARE(button.styleSheet(), changed);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QVERIFY(button.isChecked());
        QCOMPARE(host.writes.size(), 1);
    }
};

QTEST_MAIN(TestCfgRadioButton)
#include "tst_cfgradiobutton.moc"
