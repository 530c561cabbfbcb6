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
    void stateColours_data();
    void stateColours();
    void secondCall_data();
    void secondCall();
    void highlightEnds_data();
    void highlightEnds();
};

void TestStatusLabel::stateColours_data()
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
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("framed");
    QTest::addColumn<int>("durationMs");
    QTest::addColumn<QString>("sheet");

    // Each row follows setValue("5", green, no highlight, 0).
    QTest::newRow("repeat") << QVariant("5") << 1 << true << 0 << resting + green;
    QTest::newRow("repeat as number") << QVariant(5) << 1 << true << 0 << resting + green;
    QTest::newRow("repeat, duration") << QVariant("5") << 1 << false << 500 << highlight + green;
    QTest::newRow("new text") << QVariant("6") << 1 << true << 0 << highlight + green;
    QTest::newRow("new state") << QVariant("5") << 2 << true << 0 << highlight + red;
    QTest::newRow("new text, resting") << QVariant("7") << 2 << false << 0 << resting + red;
}

void TestStatusLabel::secondCall()
{
    QFETCH(QVariant, value);
    QFETCH(int, state);
    QFETCH(bool, framed);
    QFETCH(int, durationMs);
    QFETCH(QString, sheet);

    StatusLabel label;
    label.setValue(QStringLiteral("5"), StatusLabel::StateGreen, false, 0);
    label.setValue(value, StatusLabel::State(state), framed, durationMs);
    QCOMPARE(label.text(), value.toString());
    QCOMPARE(label.styleSheet(), sheet);

    // Two states of one colour are still a change; an empty value on a fresh label is not.
    StatusLabel other;
    other.setValue(QVariant(), StatusLabel::StateNone, true, 0);
    QCOMPARE(other.styleSheet(), QString());
    other.setValue(QStringLiteral("5"), StatusLabel::StateRed, false, 0);
    other.setValue(QStringLiteral("5"), StatusLabel::StateRedToo, true, 0);
    QCOMPARE(other.styleSheet(), highlight + red);
}

void TestStatusLabel::highlightEnds_data()
{
    QTest::addColumn<int>("durationMs");
    QTest::addColumn<int>("expectedMs");

    QTest::newRow("given") << 500 << 500;
    QTest::newRow("none: default") << 0 << 2000;
    QTest::newRow("negative: default") << -300 << 2000;
}

void TestStatusLabel::highlightEnds()
{
    QFETCH(int, durationMs);
    QFETCH(int, expectedMs);

    StatusLabel label;
    label.setValue(QStringLiteral("on"), StatusLabel::StateGreen, false, 0);
    QElapsedTimer clock;
    clock.start();
    label.setValue(QStringLiteral("off"), StatusLabel::StateGreen, true, durationMs);
    // Coarse timers may fire up to 5% early; an ended highlight keeps the state's colour.
    QTRY_COMPARE_WITH_TIMEOUT(label.styleSheet(), resting + green, expectedMs + 3000);
    QVERIFY2(clock.elapsed() >= expectedMs * 95 / 100,
             qPrintable(QString::number(clock.elapsed())));
    if (expectedMs < 2000)
        QVERIFY2(clock.elapsed() < 1900, "the given duration replaces the default");

    // A resting change stops the timer: a host's own style set later stays.
    label.setValue(QStringLiteral("1"), StatusLabel::StateOrange, true, 100);
    label.setValue(QStringLiteral("2"), StatusLabel::StateRed, false, 0);
    QCOMPARE(label.styleSheet(), resting + red);
    label.setStyleSheet(QStringLiteral("QLabel {};"));
    QTest::qWait(200);
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel {};"));
}

QTEST_MAIN(TestStatusLabel)
#include "tst_statuslabel.moc"
