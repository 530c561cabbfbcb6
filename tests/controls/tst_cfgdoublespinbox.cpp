// The control reads numbers through the system locale, which the toolkit takes from the
// environment at start-up: CTest runs this suite with a point locale and with a comma one.
#include "telecfg/controls/cfgdoublespinbox.h"
#include "tests/support/testhost.h"

#include <QtTest>

namespace {
const QString red = QStringLiteral("QDoubleSpinBox{background: red;}");
const QString yellow = QStringLiteral("QDoubleSpinBox{background: yellow;}");
const QString white = QStringLiteral("QDoubleSpinBox{background: white;}");

// "1#5" written with the system locale's separator, or with the other one.
QString local(QString text)
{
    return text.replace(QLatin1Char('#'), QLocale::system().decimalPoint());
}
QString foreign(QString text)
{
    const QChar other =
        QLocale::system().decimalPoint() == QLatin1Char('.') ? QLatin1Char(',') : QLatin1Char('.');
    return text.replace(QLatin1Char('#'), other);
}
} // namespace

class TestCfgDoubleSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void binding_data();
    void binding();
    void edits_data();
    void edits();
    void keyEdit();
    void invalidIsRed();
};

void TestCfgDoubleSpinBox::initTestCase()
{
    // The widget's own locale follows the system one, as in a host.
    QLocale::setDefault(QLocale::system());
    qInfo("system locale %s", qPrintable(QLocale::system().name()));
}

void TestCfgDoubleSpinBox::binding_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariantList>("record"); // minimum, maximum, value
    QTest::addColumn<QList<double>>("shown"); // minimum, maximum, value

    QTest::newRow("value in local notation")
        << 3 << QVariantList{local("0#5"), "100", local("0#75")} << QList<double>{0.5, 100, 0.75};
    QTest::newRow("value in the other notation is adapted")
        << 3 << QVariantList{"0", "100", foreign("0#75")} << QList<double>{0, 100, 0.75};
    QTest::newRow("bound in the other notation reads 0")
        << 3 << QVariantList{foreign("0#5"), "100", "20"} << QList<double>{0, 100, 20};
    QTest::newRow("value read before the bounds")
        << 3 << QVariantList{"200", "300", "250"} << QList<double>{200, 300, 250};
    QTest::newRow("type 21 whole numbers")
        << 21 << QVariantList{-40, 40, -7} << QList<double>{-40, 40, -7};
    QTest::newRow("type 21 drops a fractional text")
        << 21 << QVariantList{-40, 40, local("2#5")} << QList<double>{-40, 40, 0};
    QTest::newRow("wrong types read 0")
        << 3 << QVariantList{QSize(), QStringList(), QSize(3, 4)} << QList<double>{0, 0, 0};
}

void TestCfgDoubleSpinBox::binding()
{
    QFETCH(int, type);
    QFETCH(QVariantList, record);
    QFETCH(QList<double>, shown);

    TestHost host;
    MainConfigObject &object = host.add(10, type, record[2]);
    object.minimum = record[0];
    object.maximum = record[1];
    object.step = 0; // every nonzero value then passes the step rule
    CfgDoubleSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    QCOMPARE((QList<double>{box.minimum(), box.maximum(), box.value()}), shown);
    for (const TestHost::Write &write : qAsConst(host.writes))
        QCOMPARE(write.value.userType(), int(QMetaType::Double));
}

void TestCfgDoubleSpinBox::edits_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<double>("edited");
    QTest::addColumn<bool>("written");

    QTest::newRow("multiple written") << 2 << 6.0 << true;
    QTest::newRow("no multiple refused") << 2 << 7.0 << false;
    QTest::newRow("fraction refused") << 1 << 2.5 << false;
    QTest::newRow("step 0, value 0: not a number, refused") << 0 << 0.0 << false;
    QTest::newRow("step 0, other value: infinite, written") << 0 << 5.0 << true;
    QTest::newRow("near multiple within a float passes") << 3 << 100000001.0 << true;
    QTest::newRow("no multiple within a float's reach") << 3 << 1000001.0 << false;
}

void TestCfgDoubleSpinBox::edits()
{
    QFETCH(int, step);
    QFETCH(double, edited);
    QFETCH(bool, written);

    TestHost host;
    MainConfigObject &object = host.add(10, 3, QString::number(12));
    object.minimum = QStringLiteral("0");
    object.maximum = QStringLiteral("1000000000");
    object.step = step;
    host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
    CfgDoubleSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    host.writes.clear();
    host.modified.clear();
    box.updateControl(1);
    QCOMPARE(box.styleSheet(), white);

    box.setValue(edited); // the widget's change path, as after the user's edit
    if (written) {
        QCOMPARE(host.writes.size(), 1);
        QCOMPARE(host.writes[0].value.userType(), int(QMetaType::Double));
        QCOMPARE(host.writes[0].value.toDouble(), edited);
        QCOMPARE(box.styleSheet(), yellow);
    } else {
        // Refused: red, nothing written, the widget keeps showing the number.
        QVERIFY(host.writes.isEmpty());
        QCOMPARE(box.styleSheet(), red);
        QCOMPARE(box.value(), edited);
        box.updateControl(0); // the refresh does not repeat the rule
        QCOMPARE(box.styleSheet(), white);
    }
}

void TestCfgDoubleSpinBox::keyEdit()
{
    TestHost host;
    MainConfigObject &object = host.add(10, 15, local("4#0"));
    object.minimum = QStringLiteral("0");
    object.maximum = QStringLiteral("100");
    object.step = 2;
    CfgDoubleSpinBox box;
    box.setDecimals(1);
    box.setReference(&host, 10, nullptr, {});
    host.writes.clear();
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].value, QVariant(6.0));

    box.selectAll();
    QTest::keyClicks(&box, local("7#5"));
    QCOMPARE(box.value(), 7.5);
    QCOMPARE(host.writes.size(), 1); // "7" and "7.5" are no multiples of 2
    QCOMPARE(box.styleSheet(), red);
}

void TestCfgDoubleSpinBox::invalidIsRed()
{
    TestHost host;
    host.add(10, 3, "3").step = 2; // no multiple: the refresh does not care
    host.invalid.insert(10);
    CfgDoubleSpinBox box;
    box.setReference(&host, 10, nullptr, {});
    box.updateControl(1);
    QCOMPARE(box.styleSheet(), red);
}

QTEST_MAIN(TestCfgDoubleSpinBox)
#include "tst_cfgdoublespinbox.moc"
