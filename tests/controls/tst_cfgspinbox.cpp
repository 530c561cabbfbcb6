// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/controls/cfgspinbox.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QtTest>

namespace {
const QString red = QStringLiteral("QSpinBox{background: red;}");
const QString yellow = QStringLiteral("QSpinBox{background: yellow;}");
const QString white = QStringLiteral("QSpinBox{background: white;}");
} // namespace

class TestCfgSpinBox : public TestCase
{
    Q_OBJECT

private slots:
    void bindingAndLook_data()
    {
        // record: minimum, maximum, value
        // state: what the host reports of the value
        // shown: minimum, maximum, value
        columns<int, QVariantList, int, QString, QList<int>, QString>("type", "record", "step",
                                                                      "state", "shown", "sheet");

        const QVariantList wide{-100, 100};
        row("value above maximum clamped", 1, QVariantList{0u, 300u, 500u}, 5, "",
            QList<int>{0, 300, 300}, white);
        row("signed bounds; -20 is red by its unsigned reading", 21, QVariantList{-50, 50, -20}, 5,
            "", QList<int>{-50, 50, -20}, red);
        row("signed bounds held as text", 21, QVariantList{"-40", "40", "-10"}, 1, "",
            QList<int>{-40, 40, -10}, white);
        row("unsigned -1 reads huge, wraps", 1, QVariantList{0u, 0xFFFFFFFFu, 10u}, 5, "",
            QList<int>{-1, -1, -1}, white);
        // A host that stores the bounds' echoes still gets its value shown.
        row("value inside raised bounds", 1, QVariantList{200u, 300u, 250u}, 5, "",
            QList<int>{200, 300, 250}, white);
        row("modified", 1, wide + QVariantList{20}, 5, "modified", QList<int>{-100, 100, 20},
            yellow);
        row("no multiple, red though modified", 1, wide + QVariantList{22}, 5, "modified",
            QList<int>{-100, 100, 22}, red);
        row("invalid", 1, wide + QVariantList{20}, 5, "invalid", QList<int>{-100, 100, 20}, red);
        // Negative values are divided by their unsigned reading.
        row("-4 by 3: unsigned reading divides", 21, wide + QVariantList{-4}, 3, "",
            QList<int>{-100, 100, -4}, white);
        row("-3 by 3: unsigned reading does not", 21, wide + QVariantList{-3}, 3, "",
            QList<int>{-100, 100, -3}, red);
        row("step 0: no rule, no crash", 1, wide + QVariantList{7}, 0, "", QList<int>{-100, 100, 7},
            white);
    }

    void bindingAndLook()
    {
        auto [type, record, step, state, shown, sheet] =
            fetch<int, QVariantList, int, QString, QList<int>, QString>("type", "record", "step",
                                                                        "state", "shown", "sheet");

        TestHost host;
        MainConfigObject &object = host.add(10, type, record[2]);
        object.minimum = record[0];
        object.maximum = record[1];
        object.step = step;
        if (state == "invalid")
            host.invalid.insert(10);
        if (state == "modified")
            host.modified.insert(10);
        CfgSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        QCOMPARE((QList<int>{box.minimum(), box.maximum(), box.value()}), shown);
        QCOMPARE(box.singleStep(), step);
        box.setEnabled(false); // the look ignores the enabled state
        box.updateControl(1);
        QCOMPARE(box.styleSheet(), sheet);
    }

    // The user types a number that is no multiple of the step.
    void keyEditsWriteInts()
    {
        TestHost host;
        MainConfigObject &object = host.add(10, 1, 10u);
        object.minimum = 0u;
        object.maximum = 100u;
        object.step = 5;
        CfgSpinBox box;
        box.setReference(&host, 10, nullptr, {});
        host.writes.clear();
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, "42");
        QCOMPARE(host.writes.size(), 2); // "4" and "42"
        QCOMPARE(host.writes[1].value.userType(), int(QMetaType::Int));
        QCOMPARE(host.writes[1].value, QVariant(42)); // written, yet red
        QCOMPARE(box.styleSheet(), red);
    }
};

QTEST_MAIN(TestCfgSpinBox)
#include "tst_cfgspinbox.moc"
