#include "telecfg/controls/cfgspinbox.h"
#include "tests/support/testhost.h"

#include <QLineEdit>
#include <QtTest>

namespace {
const QString red = QStringLiteral("QSpinBox{background: red;}");
const QString yellow = QStringLiteral("QSpinBox{background: yellow;}");
const QString white = QStringLiteral("QSpinBox{background: white;}");
} // namespace

class TestCfgSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void binding_data();
    void binding();
    void colour_data();
    void colour();
    void keyEditsWriteInts_data();
    void keyEditsWriteInts();
};

void TestCfgSpinBox::binding_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariantList>("record"); // minimum, maximum, value
    QTest::addColumn<QList<int>>("shown");    // minimum, maximum, value

    QTest::newRow("value inside raised bounds")
        << 1 << QVariantList{200u, 300u, 250u} << QList<int>{200, 300, 250};
    QTest::newRow("value above maximum clamped")
        << 1 << QVariantList{0u, 300u, 500u} << QList<int>{0, 300, 300};
    QTest::newRow("signed bounds") << 21 << QVariantList{-50, 50, -20} << QList<int>{-50, 50, -20};
    QTest::newRow("unsigned -1 reads huge, wraps")
        << 1 << QVariantList{0u, 0xFFFFFFFFu, 7u} << QList<int>{-1, -1, -1};
    QTest::newRow("signed text with minus, unsigned type")
        << 1 << QVariantList{"-5", 10, 3} << QList<int>{0, 10, 3};
    QTest::newRow("wrong types read 0")
        << 21 << QVariantList{QSize(), QStringList(), QSize(3, 4)} << QList<int>{0, 0, 0};
}

void TestCfgSpinBox::binding()
{
    QFETCH(int, type);
    QFETCH(QVariantList, record);
    QFETCH(QList<int>, shown);

    TestHost host;
    MainConfigObject &object = host.add(10, type, record[2]);
    object.minimum = record[0];
    object.maximum = record[1];
    object.step = 5;
    CfgSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    QCOMPARE((QList<int>{box.minimum(), box.maximum(), box.value()}), shown);
    QCOMPARE(box.singleStep(), 5);
    // Every change binding makes is echoed to the host as an int; the last echo is
    // the value shown, so a storing host ends up holding it.
    for (const TestHost::Write &write : qAsConst(host.writes))
        QCOMPARE(write.value.userType(), int(QMetaType::Int));
    if (!host.writes.isEmpty())
        QCOMPARE(host.writes.last().value, QVariant(shown[2]));
}

void TestCfgSpinBox::colour_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("step");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<QString>("sheet");

    QTest::newRow("multiple") << 1 << 5 << QVariant(20) << true << false << white;
    QTest::newRow("multiple, modified") << 1 << 5 << QVariant(20) << true << true << yellow;
    QTest::newRow("no multiple, red though valid") << 1 << 5 << QVariant(22) << true << true << red;
    QTest::newRow("invalid") << 1 << 5 << QVariant(20) << false << false << red;
    // Negative values are divided by their unsigned reading.
    QTest::newRow("-4 by 3: unsigned reading divides")
        << 21 << 3 << QVariant(-4) << true << false << white;
    QTest::newRow("-3 by 3: unsigned reading does not")
        << 21 << 3 << QVariant(-3) << true << false << red;
    QTest::newRow("step 0: no rule, no crash") << 1 << 0 << QVariant(7) << true << false << white;
    QTest::newRow("value as text") << 1 << 4 << QVariant("12") << true << false << white;
}

void TestCfgSpinBox::colour()
{
    QFETCH(int, type);
    QFETCH(int, step);
    QFETCH(QVariant, value);
    QFETCH(bool, valid);
    QFETCH(bool, modified);
    QFETCH(QString, sheet);

    TestHost host;
    MainConfigObject &object = host.add(10, type, value);
    object.minimum = -100;
    object.maximum = 100;
    object.step = step;
    host.storeWrites = false; // the host keeps exactly the value of the row
    if (!valid)
        host.invalid.insert(10);
    if (modified)
        host.modified.insert(10);
    CfgSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    box.setEnabled(false); // the look ignores the enabled state
    box.updateControl(1);
    QCOMPARE(box.styleSheet(), sheet);
}

void TestCfgSpinBox::keyEditsWriteInts_data()
{
    QTest::addColumn<QString>("typed"); // empty: one arrow key up instead
    QTest::addColumn<int>("written");
    QTest::addColumn<QString>("sheet");

    QTest::newRow("arrow up one step") << QString() << 15 << white;
    QTest::newRow("typed multiple") << "40" << 40 << white;
    QTest::newRow("typed no multiple: written, red") << "42" << 42 << red;
}

void TestCfgSpinBox::keyEditsWriteInts()
{
    QFETCH(QString, typed);
    QFETCH(int, written);
    QFETCH(QString, sheet);

    TestHost host;
    MainConfigObject &object = host.add(10, 1, 10u);
    object.minimum = 0u;
    object.maximum = 100u;
    object.step = 5;
    CfgSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    box.updateControl(1);
    host.writes.clear();
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setFocus();
    if (typed.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Up);
    } else {
        box.selectAll();
        QTest::keyClicks(&box, typed);
    }
    QVERIFY(!host.writes.isEmpty());
    QCOMPARE(host.writes.last().value.userType(), int(QMetaType::Int));
    QCOMPARE(host.writes.last().value, QVariant(written));
    QCOMPARE(box.styleSheet(), sheet);
}

QTEST_MAIN(TestCfgSpinBox)
#include "tst_cfgspinbox.moc"
