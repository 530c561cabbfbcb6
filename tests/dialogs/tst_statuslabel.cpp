#include "telecfg/dialogs/statuslabel.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {
const QString highlight = QStringLiteral("QFrame{border: 2px solid yellow;}");
const QString resting = QStringLiteral("QFrame{border: 2px solid rgba(255,255,255,0%);}");
const QString green = QStringLiteral("QLabel { background-color : lightgreen};");
const QString red = QStringLiteral("QLabel { background-color : red};");
} // namespace

class TestStatusLabel : public QObject
{
    Q_OBJECT

private slots:
    void stateColours_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("colour");

        QTest::newRow("none") << 0 << QStringLiteral("QLabel {};");
        QTest::newRow("green") << 1 << green;
        QTest::newRow("red") << 2 << red;
        QTest::newRow("yellow") << 3 << QStringLiteral("QLabel { background-color : yellow};");
        QTest::newRow("orange") << 4 << QStringLiteral("QLabel { background-color : orange};");
        QTest::newRow("red too") << 5 << red;
        QTest::newRow("6: frame only") << 6 << QString();
    }

    void stateColours()
    {
        QFETCH(int, state);
        QFETCH(QString, colour);

        StatusLabel label;
        label.setValue(QStringLiteral("12 V"), StatusLabel::State(state), false, 0);
        QCOMPARE(label.text(), QStringLiteral("12 V"));
        QCOMPARE(label.styleSheet(), resting + colour);
        label.setValue(QStringLiteral("13 V"), StatusLabel::State(state), true, 0);
        QCOMPARE(label.styleSheet(), highlight + colour);
        label.resetTimer();
        QCOMPARE(label.styleSheet(), resting + colour);
    }

    // Each row follows setValue("5", green, no highlight, 0): only a change or a duration
    // sets the style.
    void secondCall_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("state");
        QTest::addColumn<int>("durationMs");
        QTest::addColumn<QString>("sheet");

        QTest::newRow("repeat") << "5" << 1 << 0 << resting + green;
        QTest::newRow("repeat, duration") << "5" << 1 << 500 << highlight + green;
        QTest::newRow("new text") << "6" << 1 << 0 << highlight + green;
        QTest::newRow("new state") << "5" << 2 << 0 << highlight + red;
    }

    void secondCall()
    {
        QFETCH(QString, value);
        QFETCH(int, state);
        QFETCH(int, durationMs);
        QFETCH(QString, sheet);

        StatusLabel label;
        label.setValue(QStringLiteral("5"), StatusLabel::StateGreen, false, 0);
        label.setValue(value, StatusLabel::State(state), durationMs == 0, durationMs);
        QCOMPARE(label.text(), value);
        QCOMPARE(label.styleSheet(), sheet);
    }

    void highlightEnds_data()
    {
        QTest::addColumn<int>("durationMs");
        QTest::addColumn<int>("expectedMs");

        QTest::newRow("given") << 500 << 500;
        QTest::newRow("negative: default") << -300 << 2000;
    }

    void highlightEnds()
    {
        QFETCH(int, durationMs);
        QFETCH(int, expectedMs);

        StatusLabel label;
        QElapsedTimer clock;
        clock.start();
        label.setValue(QStringLiteral("on"), StatusLabel::StateGreen, true, durationMs);
        // Coarse timers may fire up to 5% early; an ended highlight keeps the state's colour.
        QTRY_COMPARE_WITH_TIMEOUT(label.styleSheet(), resting + green, expectedMs + 3000);
        QVERIFY(clock.elapsed() >= expectedMs * 95 / 100);
        QVERIFY(clock.elapsed() < expectedMs + 1400);

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
