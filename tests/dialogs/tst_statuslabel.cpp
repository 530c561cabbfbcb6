// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/statuslabel.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QtTest>

namespace {
const QString highlight = QStringLiteral("QFrame{border: 2px solid yellow;}");
const QString resting = QStringLiteral("QFrame{border: 2px solid rgba(255,255,255,0%);}");
const QString green = QStringLiteral("QLabel { background-color : lightgreen};");
const QString red = QStringLiteral("QLabel { background-color : red};");
} // namespace

class TestStatusLabel : public TestCase
{
    Q_OBJECT

private slots:
    // Each row follows setValue("5", green, no highlight, 0): only a change or a duration
    // sets the style, each state with its own colour.
    void setValue_data()
    {
        columns<QString, int, bool, int, QString>("value", "state", "highlight", "durationMs",
                                                  "sheet");

        row("none", "6", 0, false, 0, resting + "QLabel {};");
        row("green", "6", 1, false, 0, resting + green);
        row("red", "6", 2, false, 0, resting + red);
        row("yellow", "6", 3, false, 0, resting + "QLabel { background-color : yellow};");
        row("orange", "6", 4, false, 0, resting + "QLabel { background-color : orange};");
        row("red too", "6", 5, false, 0, resting + red);
        row("6: frame only", "6", 6, true, 0, highlight);
        row("repeat", "5", 1, true, 0, resting + green);
        row("repeat, duration", "5", 1, false, 500, highlight + green);
        row("new state", "5", 2, true, 0, highlight + red);
    }

    void setValue()
    {
        auto [value, state, highlight, durationMs, sheet] = fetch<QString, int, bool, int, QString>(
            "value", "state", "highlight", "durationMs", "sheet");

        StatusLabel label;
        label.setValue(QStringLiteral("5"), StatusLabel::StateGreen, false, 0);
        label.setValue(value, StatusLabel::State(state), highlight, durationMs);
        QCOMPARE(label.styleSheet(), sheet);
    }

    void highlightEnds_data()
    {
        columns<int, int>("durationMs", "expectedMs");

        row("given", 500, 500);
        row("negative: default", -300, 2000);
        row("0: default", 0, 2000);
    }

    void highlightEnds()
    {
        auto [durationMs, expectedMs] = fetch<int, int>("durationMs", "expectedMs");

        StatusLabel label;
        label.setValue(QStringLiteral("on"), StatusLabel::StateGreen, true, durationMs);
        // Halfway between the two durations only the shorter highlight has ended; no upper
        // bound on time, so a loaded machine cannot fail it.
        QTest::qWait(1200);
        QCOMPARE(label.styleSheet() == resting + green, expectedMs < 1200);
        // An ended highlight keeps the state's colour.
        QTRY_COMPARE_WITH_TIMEOUT(label.styleSheet(), resting + green, expectedMs + 3000);

        // A resting change stops the timer: a host's own style set later stays.
        label.setValue(QStringLiteral("1"), StatusLabel::StateOrange, true, 100);
        label.setValue(QStringLiteral("2"), StatusLabel::StateRed, false, 0);
        label.setStyleSheet(QStringLiteral("QLabel {};"));
        QTest::qWait(200);
        QCOMPARE(label.styleSheet(), QStringLiteral("QLabel {};"));
    }
};

QTEST_MAIN(TestStatusLabel)
#include "tst_statuslabel.moc"
