// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/gui.h"
#include "telecfg/network/countrytable.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// A label under `box` with the given weight (-1: no font of its own), italic to see that the
// rest of its font survives.
QLabel *addLabel(QGroupBox *box, int weight, const QString &name = QString())
{
    auto *label = new QLabel(QStringLiteral("x"));
    label->setObjectName(name);
    QFont font = label->font();
    font.setItalic(true);
    if (weight >= 0)
        font.setWeight(QFont::Weight(weight));
    label->setFont(font);
    if (!box->layout())
        new QVBoxLayout(box);
    box->layout()->addWidget(label);
    return label;
}

const int normal = QFont::Normal;
const int bold = QFont::Bold;

} // namespace

class TestGui : public QObject
{
    Q_OBJECT

private slots:
    void constructionFillsTable();
    void titleBoldChildWeights();
    void titleBoldNestedBoxes();
};

void TestGui::constructionFillsTable()
{
    countryTable.clear();
    GUI gui;
    QCOMPARE(countryTable.size(), 222);
    countryTable.remove(260); // every construction fills anew
    GUI other;
    QCOMPARE(countryTable.size(), 222);
}

void TestGui::titleBoldChildWeights()
{
    QGroupBox box(QStringLiteral("Zasilanie"));
    const int pointSize = box.font().pointSize();
    // By name: Qt 5 weighs fonts 0..99 (Medium 57, Bold 75), Qt 6 100..900 (500, 700).
    const QList<int> weights{-1, QFont::Light, QFont::Medium, QFont::Medium + 1, QFont::Black};
    QList<QLabel *> labels;
    for (int weight : weights)
        labels << addLabel(&box, weight);
    labels << addLabel(&box, QFont::Bold, QStringLiteral("lbVoltage")); // named widgets count too

    for (int pass = 0; pass < 2; ++pass) { // a second call keeps the same look
        setGroupBoxTitleBold(&box);
        QList<int> got;
        for (QLabel *label : labels) {
            got << label->font().weight();
            QVERIFY(label->font().italic());
        }
        QCOMPARE(got, (QList<int>{normal, normal, normal, bold, bold, bold}));
        QCOMPARE(box.font().weight(), bold);
        QCOMPARE(box.font().pointSize(), pointSize);
    }
}

void TestGui::titleBoldNestedBoxes()
{
    QGroupBox outer(QStringLiteral("Zewnętrzna"));
    QLabel *outerLabel = addLabel(&outer, -1);
    auto *inner = new QGroupBox(QStringLiteral("Wewnętrzna"));
    outer.layout()->addWidget(inner);
    QLabel *innerLabel = addLabel(inner, QFont::Black);
    const auto weights = [&] {
        return QList<int>{outer.font().weight(), outerLabel->font().weight(),
                          inner->font().weight(), innerLabel->font().weight()};
    };

    setGroupBoxTitleBold(&outer); // reaches the grandchild too
    QCOMPARE(weights(), (QList<int>{bold, normal, normal, bold}));
    setGroupBoxTitleBold(inner);
    setGroupBoxTitleBold(&outer); // keeps the inner title bold
    QCOMPARE(weights(), (QList<int>{bold, normal, bold, bold}));

    QGroupBox empty;
    setGroupBoxTitleBold(&empty);
    QCOMPARE(empty.font().weight(), bold);
    setGroupBoxTitleBold(nullptr); // must not crash
}

QTEST_MAIN(TestGui)
#include "tst_gui.moc"
