#include "telecfg/dialogs/gui.h"
#include "telecfg/network/countrytable.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

class TestGui : public QObject
{
    Q_OBJECT

private slots:
    void constructionFillsTable();
    void titleBoldChildWeights_data();
    void titleBoldChildWeights();
    void titleBoldNestedBoxes();
    void titleBoldTwiceSameLook();
    void titleBoldWithoutChildrenOrBox();
};

void TestGui::constructionFillsTable()
{
    countryTable.clear();
    GUI gui;
    QCOMPARE(countryTable.size(), 222);

    // Every construction fills anew; assignment touches nothing.
    countryTable.remove(260);
    GUI other;
    QCOMPARE(countryTable.size(), 222);
    countryTable.clear();
    other = gui;
    QVERIFY(countryTable.isEmpty());
}

void TestGui::titleBoldChildWeights_data()
{
    QTest::addColumn<int>("weight"); // -1: the child has no font of its own
    QTest::addColumn<int>("expected");

    QTest::newRow("inherited") << -1 << 50;
    QTest::newRow("light 25") << 25 << 50;
    QTest::newRow("normal 50") << 50 << 50;
    QTest::newRow("medium 57") << 57 << 50;
    QTest::newRow("58") << 58 << 75;
    QTest::newRow("bold 75") << 75 << 75;
    QTest::newRow("black 87") << 87 << 75;
}

void TestGui::titleBoldChildWeights()
{
    QFETCH(int, weight);
    QFETCH(int, expected);

    QGroupBox box(QStringLiteral("Zasilanie"));
    const int pointSize = box.font().pointSize();
    auto *layout = new QVBoxLayout(&box);
    // Widgets of a form are named; they count as much as unnamed ones.
    auto *named = new QLabel(QStringLiteral("a"));
    named->setObjectName(QStringLiteral("lbVoltage"));
    auto *unnamed = new QLabel(QStringLiteral("b"));
    layout->addWidget(named);
    layout->addWidget(unnamed);
    for (QLabel *label : {named, unnamed}) {
        QFont font = label->font();
        font.setItalic(true);
        if (weight >= 0)
            font.setWeight(weight);
        label->setFont(font);
    }

    setGroupBoxTitleBold(&box);

    QCOMPARE(box.font().weight(), 75);
    QCOMPARE(box.font().pointSize(), pointSize);
    for (QLabel *label : {named, unnamed}) {
        QCOMPARE(label->font().weight(), expected);
        QVERIFY(label->font().italic());
    }
}

void TestGui::titleBoldNestedBoxes()
{
    QGroupBox outer(QStringLiteral("Zewnętrzna"));
    auto *outerLayout = new QVBoxLayout(&outer);
    auto *outerLabel = new QLabel(QStringLiteral("x"));
    auto *inner = new QGroupBox(QStringLiteral("Wewnętrzna"));
    auto *innerLabel = new QLabel(QStringLiteral("y"));
    (new QVBoxLayout(inner))->addWidget(innerLabel);
    outerLayout->addWidget(outerLabel);
    outerLayout->addWidget(inner);

    setGroupBoxTitleBold(inner);
    QCOMPARE(inner->font().weight(), 75);
    QCOMPARE(innerLabel->font().weight(), 50);

    setGroupBoxTitleBold(&outer);
    QCOMPARE(outer.font().weight(), 75);
    QCOMPARE(outerLabel->font().weight(), 50);
    QCOMPARE(inner->font().weight(), 75);
    QCOMPARE(innerLabel->font().weight(), 50);
}

void TestGui::titleBoldTwiceSameLook()
{
    QGroupBox box;
    auto *layout = new QVBoxLayout(&box);
    QList<QLabel *> labels;
    for (int weight : {25, 50, 57, 58, 75}) {
        auto *label = new QLabel(QString::number(weight));
        QFont font = label->font();
        font.setWeight(weight);
        label->setFont(font);
        layout->addWidget(label);
        labels.append(label);
    }
    const auto weights = [&] {
        QList<int> w{box.font().weight()};
        for (QLabel *label : labels)
            w.append(label->font().weight());
        return w;
    };

    setGroupBoxTitleBold(&box);
    const QList<int> once = weights();
    QCOMPARE(once, (QList<int>{75, 50, 50, 50, 75, 75}));
    setGroupBoxTitleBold(&box);
    QCOMPARE(weights(), once);
}

void TestGui::titleBoldWithoutChildrenOrBox()
{
    QGroupBox box;
    setGroupBoxTitleBold(&box);
    QCOMPARE(box.font().weight(), 75);
    setGroupBoxTitleBold(nullptr);
}

QTEST_MAIN(TestGui)
#include "tst_gui.moc"
