#include "telecfg/dialogs/statuslabel.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {
const QString highlight = QStringLiteral("QFrame{border: 2px solid yellow;}");
const QString resting = QStringLiteral("QFrame{border: 2px solid rgba(255,255,255,0%);}");
const QString green = QStringLiteral("QLabel { background-color : lightgreen};");
const QString red = QStringLiteral("QLabel { background-color : red};");
const QString none = QStringLiteral("QLabel {};");

struct Call
{
    QVariant value;
    int state;
    bool highlight;
    int durationMs;
};
} // namespace
Q_DECLARE_METATYPE(Call)

class TestStatusLabel : public QObject
{
    Q_OBJECT

private slots:
    void stateColours_data();
    void stateColours();
    void secondCall_data();
    void secondCall();
    void highlightEndsAfterDuration_data();
    void highlightEndsAfterDuration();
    void restingChangeCancelsHighlight();
};

void TestStatusLabel::stateColours_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("colour");

    QTest::newRow("none") << 0 << none;
    QTest::newRow("green") << 1 << green;
    QTest::newRow("red") << 2 << red;
    QTest::newRow("yellow") << 3 << QStringLiteral("QLabel { background-color : yellow};");
    QTest::newRow("orange") << 4 << QStringLiteral("QLabel { background-color : orange};");
    QTest::newRow("red too") << 5 << red;
    QTest::newRow("6: frame only") << 6 << QString();
    QTest::newRow("-1: frame only") << -1 << QString();
}

void TestStatusLabel::stateColours()
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

void TestStatusLabel::secondCall_data()
{
    QTest::addColumn<Call>("first");
    QTest::addColumn<Call>("second");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sheet");

    const Call restingGreen{QStringLiteral("5"), 1, false, 0};
    QTest::newRow("repeat with highlight is ignored")
        << restingGreen << Call{QStringLiteral("5"), 1, true, 0} << "5" << resting + green;
    QTest::newRow("repeat as a number is ignored")
        << restingGreen << Call{5, 1, true, 0} << "5" << resting + green;
    QTest::newRow("repeat with a duration highlights")
        << restingGreen << Call{QStringLiteral("5"), 1, false, 500} << "5" << highlight + green;
    QTest::newRow("new text highlights")
        << restingGreen << Call{QStringLiteral("6"), 1, true, 0} << "6" << highlight + green;
    QTest::newRow("new state alone counts")
        << restingGreen << Call{QStringLiteral("5"), 2, true, 0} << "5" << highlight + red;
    QTest::newRow("red to the other red counts")
        << Call{QStringLiteral("5"), 2, false, 0} << Call{QStringLiteral("5"), 5, true, 0} << "5"
        << highlight + red;
    QTest::newRow("new text without highlight rests")
        << Call{QStringLiteral("5"), 1, true, 0} << Call{QStringLiteral("7"), 2, false, 0} << "7"
        << resting + red;
    QTest::newRow("empty value on a fresh label changes nothing")
        << Call{QVariant(), 0, true, 0} << Call{QString(), 0, true, 0} << ""
        << "";
}

void TestStatusLabel::secondCall()
{
    QFETCH(Call, first);
    QFETCH(Call, second);
    QFETCH(QString, text);
    QFETCH(QString, sheet);

    StatusLabel label;
    label.setValue(first.value, StatusLabel::State(first.state), first.highlight, first.durationMs);
    label.setValue(second.value, StatusLabel::State(second.state), second.highlight,
                   second.durationMs);
    QCOMPARE(label.text(), text);
    QCOMPARE(label.styleSheet(), sheet);
}

void TestStatusLabel::highlightEndsAfterDuration_data()
{
    QTest::addColumn<int>("durationMs");
    QTest::addColumn<int>("expectedMs");

    QTest::newRow("given duration") << 500 << 500;
    QTest::newRow("no duration: default") << 0 << 2000;
    QTest::newRow("negative: default") << -300 << 2000;
}

void TestStatusLabel::highlightEndsAfterDuration()
{
    QFETCH(int, durationMs);
    QFETCH(int, expectedMs);

    StatusLabel label;
    label.setValue(QStringLiteral("on"), StatusLabel::StateGreen, false, 0);
    QElapsedTimer clock;
    clock.start();
    label.setValue(QStringLiteral("off"), StatusLabel::StateGreen, true, durationMs);
    QCOMPARE(label.styleSheet(), highlight + green);

    // Coarse timers may fire up to 5% early; an ended highlight keeps the state's colour.
    QTRY_COMPARE_WITH_TIMEOUT(label.styleSheet(), resting + green, expectedMs + 3000);
    QVERIFY2(clock.elapsed() >= expectedMs * 95 / 100,
             qPrintable(QString::number(clock.elapsed())));
    if (expectedMs < 2000)
        QVERIFY2(clock.elapsed() < 1900, "the given duration replaces the default");
}

void TestStatusLabel::restingChangeCancelsHighlight()
{
    StatusLabel label;
    label.setValue(QStringLiteral("1"), StatusLabel::StateOrange, true, 100);
    label.setValue(QStringLiteral("2"), StatusLabel::StateRed, false, 0);
    QCOMPARE(label.styleSheet(), resting + red);

    // A host's own style set now must not be replaced by a forgotten timer.
    label.setStyleSheet(QStringLiteral("QLabel {};"));
    QTest::qWait(300);
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel {};"));
}

QTEST_MAIN(TestStatusLabel)
#include "tst_statuslabel.moc"
