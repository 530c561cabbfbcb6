// Decimal patterns follow the system locale, which the toolkit reads from the environment
// at start-up: CTest runs this suite once with a point locale and once with a comma one.
#include "telecfg/controls/cfglineedit.h"
#include "tests/support/testhost.h"

#include <QValidator>
#include <QtTest>

namespace {
const QString red = QStringLiteral("QLineEdit{background: red;}");
const QString yellow = QStringLiteral("QLineEdit{background: yellow;}");
const QString white = QStringLiteral("QLineEdit{background: white;}");

bool pointLocale()
{
    return QLocale::system().decimalPoint() == QLatin1Char('.');
}

// The host logged exactly these values, of these types.
void compareWrites(const TestHost &host, const QVariantList &expected)
{
    QCOMPARE(host.writes.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(host.writes[i].value.userType(), expected[i].userType());
        QCOMPARE(host.writes[i].value, expected[i]);
    }
}
} // namespace

class TestCfgLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void validators_data();
    void validators();
    void bindingShowsAndEchoes_data();
    void bindingShowsAndEchoes();
    void edits_data();
    void edits();
    void typingWritesEachText();
    void painting();
    void displayTextWritesNothing();
};

void TestCfgLineEdit::initTestCase()
{
    // The widgets' own locale follows the system one, as in a host.
    QLocale::setDefault(QLocale::system());
    qInfo("system locale %s, decimal point '%s'", qPrintable(QLocale::system().name()),
          qPrintable(QString(QLocale::system().decimalPoint())));
}

void TestCfgLineEdit::validators_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("acceptable");

    const QString sep = pointLocale() ? "." : ",", other = pointLocale() ? "," : ".";
    auto row = [](int type, const QString &text, bool acceptable) {
        QTest::addRow("type %d: '%s'", type, qPrintable(text)) << type << text << acceptable;
    };
    row(4, "-12", true);
    row(21, "-", false);
    row(28, "1-2", false);
    row(1, "12", true);
    row(2, "-12", false);
    row(6, "1a", false);
    row(11, "007", true);
    row(3, "1" + sep + "25", true);
    row(15, "1" + other + "25", false);
    row(18, "1" + sep + "12345", true);
    row(18, "1" + sep + "123456", false);
    row(3, "-1", false);
    row(30, "-1" + sep + "5", true);
    row(30, "-1" + other + "5", false);
    row(30, "-15", true);
    row(10, "192.168.0.1", true);
    row(19, "255.255.255.255", true);
    row(10, "256.1.1.1", false);
    row(10, "1.2.3", false);
    row(12, "+48600100200", true);
    row(12, "1-2-", true);
    row(12, "-123", false);
    row(12, "++1", false);
    row(12, "123456789012345678901234567890", false);
    row(16, "Auto 12+", true);
    row(16, "a_b^c", true);
    row(16, "zażółć", false);
    row(16, "", false);
    row(17, "a-b?@#%^*()=_<>,./~`'", true);
    row(17, "a\"b", true);
    row(17, "a{b", false);
    row(0, "anything ~{|}", true);
    row(99, "ąę", true);
}

void TestCfgLineEdit::validators()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    QFETCH(bool, acceptable);

    TestHost host;
    host.add(10, type, QString());
    CfgLineEdit edit;
    edit.setReference(&host, 10, nullptr, {});
    int pos = 0;
    const QValidator::State state =
        edit.validator() ? edit.validator()->validate(text, pos) : QValidator::Acceptable;
    QCOMPARE(state == QValidator::Acceptable, acceptable);
}

void TestCfgLineEdit::bindingShowsAndEchoes_data()
{
    QTest::addColumn<int>("ref");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariantList>("writes");

    QTest::newRow("number echoes as text") << 10 << QVariant(42u) << "42" << QVariantList{"42"};
    QTest::newRow("invalid value shows nothing") << 10 << QVariant() << "" << QVariantList();
    QTest::newRow("refused by validator still shown")
        << 10 << QVariant("12ab") << "12ab" << QVariantList{"12ab"};
    QTest::newRow("blank at end shown, not written")
        << 10 << QVariant("12 ") << "12 " << QVariantList();
    QTest::newRow("wrong type shows nothing")
        << 10 << QVariant(QSize(1, 2)) << "" << QVariantList();
    QTest::newRow("parameter 4 special value")
        << 4 << QVariant(0xFFFFFFFFu) << "4294967295" << QVariantList{"4294967295"};
}

void TestCfgLineEdit::bindingShowsAndEchoes()
{
    QFETCH(int, ref);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(QVariantList, writes);

    TestHost host;
    host.add(ref, 1, value);
    host.storeWrites = false;
    CfgLineEdit edit;
    edit.setReference(&host, ref, nullptr, {});
    QCOMPARE(edit.text(), text);
    compareWrites(host, writes);
}

void TestCfgLineEdit::edits_data()
{
    QTest::addColumn<int>("ref");
    QTest::addColumn<bool>("error");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("written"); // invalid: nothing written
    QTest::addColumn<QString>("sheet");

    QTest::newRow("text written as string") << 10 << false << "123" << QVariant("123") << yellow;
    QTest::newRow("leading blank refused") << 10 << false << " ab" << QVariant() << red;
    QTest::newRow("trailing blank refused") << 10 << false << "ab " << QVariant() << red;
    QTest::newRow("empty written as string") << 10 << false << "" << QVariant("") << yellow;
    QTest::newRow("error blocks the edit") << 10 << true << "123" << QVariant() << red;
    QTest::newRow("parameter 4 emptied, error")
        << 4 << true << "" << QVariant(0xFFFFFFFFu) << white;
    QTest::newRow("parameter 4 text") << 4 << false << "7" << QVariant("7") << yellow;
}

void TestCfgLineEdit::edits()
{
    QFETCH(int, ref);
    QFETCH(bool, error);
    QFETCH(QString, text);
    QFETCH(QVariant, written);
    QFETCH(QString, sheet);

    TestHost host;
    host.add(ref, 0, "start");
    host.onWrite = [&](int r, const QVariant &) { host.modified.insert(r); };
    CfgLineEdit edit;
    edit.setReference(&host, ref, nullptr, {});
    host.writes.clear();
    host.modified.clear();
    edit.updateControl(1);
    QCOMPARE(edit.styleSheet(), white);
    edit.setError(error);
    edit.setText(text); // the public slot: an edit like the user's

    compareWrites(host, written.isValid() ? QVariantList{written} : QVariantList());
    if (!written.isValid())
        QCOMPARE(host.records[ref].value, QVariant("start"));
    QCOMPARE(edit.styleSheet(), sheet);
}

void TestCfgLineEdit::typingWritesEachText()
{
    TestHost host;
    host.add(4, 1, 12u);
    CfgLineEdit edit;
    edit.setReference(&host, 4, nullptr, {});
    host.writes.clear();
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    edit.setFocus();
    edit.end(false);
    QTest::keyClicks(&edit, "3x4"); // the validator swallows the letter
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Backspace);

    compareWrites(host, {"123", "1234", 0xFFFFFFFFu});
}

void TestCfgLineEdit::painting()
{
    TestHost host;
    host.add(10, 1, 5u);
    host.invalid.insert(10);
    host.modified.insert(10);
    CfgLineEdit unbound, bound;
    unbound.updateControl(1);
    QCOMPARE(unbound.styleSheet(), white);
    unbound.setError(true);
    unbound.updateControl(1);
    QCOMPARE(unbound.styleSheet(), red); // an unbound edit still shows its error
    bound.setReference(&host, 10, nullptr, {});
    bound.updateControl(1);
    QCOMPARE(bound.styleSheet(), red); // invalid wins over modified
}

void TestCfgLineEdit::displayTextWritesNothing()
{
    TestHost host;
    host.add(10, 1, 5u);
    CfgLineEdit edit;
    edit.setReference(&host, 10, nullptr, {});
    edit.updateControl(1);
    host.writes.clear();
    host.modified.insert(10);
    edit.displayText(QStringLiteral("77"));
    QCOMPARE(edit.displayText(), QStringLiteral("77"));
    QVERIFY(host.writes.isEmpty());
    QCOMPARE(edit.styleSheet(), white);
    // Still connected afterwards.
    edit.setText(QStringLiteral("78"));
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(edit.styleSheet(), yellow);
}

QTEST_MAIN(TestCfgLineEdit)
#include "tst_cfglineedit.moc"
