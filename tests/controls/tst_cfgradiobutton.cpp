#include "telecfg/controls/cfgradiobutton.h"
#include "tests/support/testhost.h"

#include <QtTest>

namespace {
QString sheet(const char *checkedImage, int blanks)
{
    const QString gap(blanks, QLatin1Char(' '));
    return QStringLiteral("QRadioButton::indicator:unchecked {image: "
                          "url(:/images/radiobutton_unselected.png);}") +
           gap + "QRadioButton::indicator:checked {image: url(:/images/" + checkedImage +
           ".png);}" + gap +
           "QRadioButton::indicator:unchecked:hover {image: "
           "url(:/images/radiobutton_unselected_hover.png);}" +
           gap +
           "QRadioButton::indicator:checked:hover {image: "
           "url(:/images/radiobutton_selected_hover.png);}";
}
const QString normal = sheet("radiobutton_selected_black", 24);
const QString changed = sheet("radiobutton_selected_yellow", 22);
} // namespace

class TestCfgRadioButton : public QObject
{
    Q_OBJECT

private slots:
    void binding_data();
    void binding();
    void pressWritesChoice_data();
    void pressWritesChoice();
    void setSelected_data();
    void setSelected();
};

void TestCfgRadioButton::binding_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<bool>("checkedBefore");
    QTest::addColumn<bool>("checked");

    QTest::newRow("type 4, its choice") << 4 << QVariant(2u) << QVariant(2) << false << true;
    QTest::newRow("type 4, other choice") << 4 << QVariant(3u) << QVariant(2) << true << false;
    QTest::newRow("type 4, value as text") << 4 << QVariant("2") << QVariant(2u) << false << true;
    QTest::newRow("type 4, wrong value type")
        << 4 << QVariant(QSize(2, 2)) << QVariant(2) << true << false;
    QTest::newRow("type 4, no choice set") << 4 << QVariant(0u) << QVariant() << true << false;
    QTest::newRow("other type keeps checked") << 1 << QVariant(2u) << QVariant(2) << false << false;
    QTest::newRow("other type keeps unchecked") << 1 << QVariant(3u) << QVariant(2) << true << true;
}

void TestCfgRadioButton::binding()
{
    QFETCH(int, type);
    QFETCH(QVariant, value);
    QFETCH(QVariant, minimum);
    QFETCH(bool, checkedBefore);
    QFETCH(bool, checked);

    TestHost host;
    MainConfigObject &object = host.add(10, type, value);
    object.minimum = minimum;
    CfgRadioButton button;
    button.setAutoExclusive(false); // a lone exclusive button cannot be unchecked
    button.setChecked(checkedBefore);
    button.setReference(&host, 10, nullptr, {});
    QCOMPARE(button.isChecked(), checked);
    QVERIFY(host.writes.isEmpty()); // binding writes nothing
}

void TestCfgRadioButton::pressWritesChoice_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<bool>("checkedBefore");

    QTest::newRow("type 4, unsigned choice") << 4 << QVariant(1u) << false;
    QTest::newRow("already checked writes again") << 4 << QVariant(1u) << true;
    QTest::newRow("other type writes too") << 7 << QVariant("tryb") << false;
}

void TestCfgRadioButton::pressWritesChoice()
{
    QFETCH(int, type);
    QFETCH(QVariant, minimum);
    QFETCH(bool, checkedBefore);

    TestHost host;
    host.add(10, type, checkedBefore ? minimum : QVariant(0u)).minimum = minimum;
    host.onWrite = [&](int ref, const QVariant &) { host.modified.insert(ref); };
    CfgRadioButton button;
    button.setText(QStringLiteral("Nasłuch"));
    button.setReference(&host, 10, nullptr, {});
    button.setChecked(checkedBefore);
    button.updateControl(1);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));

    // The choice is written on the press, before the button is released.
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(host.writes.size(), 1);
    QCOMPARE(host.writes[0].ref, 10);
    QCOMPARE(host.writes[0].value.userType(), minimum.userType());
    QCOMPARE(host.writes[0].value, minimum);
    QCOMPARE(button.styleSheet(), changed);
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(button.isChecked());
    QCOMPARE(host.writes.size(), 1);
}

void TestCfgRadioButton::setSelected_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("checkedBefore");
    QTest::addColumn<int>("selected");
    QTest::addColumn<bool>("checked");

    QTest::newRow("its choice checks") << 4 << false << 5 << true;
    QTest::newRow("other value unchecks") << 4 << true << 6 << false;
    QTest::newRow("other type ignores") << 1 << false << 5 << false;
    QTest::newRow("other type keeps checked") << 1 << true << 6 << true;
}

void TestCfgRadioButton::setSelected()
{
    QFETCH(int, type);
    QFETCH(bool, checkedBefore);
    QFETCH(int, selected);
    QFETCH(bool, checked);

    TestHost host;
    host.add(10, type, 0u).minimum = 5u;
    host.modified.insert(10);
    CfgRadioButton button;
    button.setAutoExclusive(false);        // a lone exclusive button cannot be unchecked
    button.setSelected(selected);          // unbound: no crash
    QCOMPARE(button.styleSheet(), normal); // unbound buttons wear the normal sheet
    button.setReference(&host, 10, nullptr, {});
    button.setChecked(checkedBefore);
    QCOMPARE(button.styleSheet(), normal); // binding does not refresh the look
    button.setSelected(selected);
    QCOMPARE(button.isChecked(), checked);
    QCOMPARE(button.styleSheet(), changed); // refreshed in every case
    QVERIFY(host.writes.isEmpty());
}

QTEST_MAIN(TestCfgRadioButton)
#include "tst_cfgradiobutton.moc"
