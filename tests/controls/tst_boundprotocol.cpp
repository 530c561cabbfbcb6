// The protocol every bound control shares, run over every kind of control.
#include "telecfg/dialogs/gui.h"
#include "tests/support/anycontrol.h"
#include "tests/support/testhost.h"

#include <QLabel>
#include <QtTest>

using IntMap = QMap<int, int>;
using IntList = QList<int>;
Q_DECLARE_METATYPE(IntMap)
Q_DECLARE_METATYPE(IntList)

class TestBoundProtocol : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setGUILicenseLevel(0); }
    void visibility_data();
    void visibility();
    void hardwareIdZeroMeansLast_data() { kinds(); }
    void hardwareIdZeroMeansLast();
    void unboundRefreshLosesId_data() { kinds(); }
    void unboundRefreshLosesId();
    void setHiddenRecordsRequest_data() { kinds(); }
    void setHiddenRecordsRequest();
    void enableGate_data() { kinds(); }
    void enableGate();
    void errorFlag_data() { kinds(); }
    void errorFlag();
    void rebuiltRecordIsRefetched_data() { kinds(); }
    void rebuiltRecordIsRefetched();
    void lookFollowsErrorAndEnabled_data();
    void lookFollowsErrorAndEnabled();
    void editsReachTheLiveRecord_data() { kinds(valueControlKinds()); }
    void editsReachTheLiveRecord();
    void unboundOrNullInterfaceNeverCrashes_data() { kinds(); }
    void unboundOrNullInterfaceNeverCrashes();

private:
    static void kinds(const QStringList &names = anyControlKinds());
};

void TestBoundProtocol::kinds(const QStringList &names)
{
    QTest::addColumn<QString>("kind");
    for (const QString &kind : names)
        QTest::newRow(qPrintable(kind)) << kind;
}

void TestBoundProtocol::visibility_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<uint>("version");
    QTest::addColumn<IntMap>("minVersions");
    QTest::addColumn<IntMap>("maxVersions");
    QTest::addColumn<IntList>("hardwareIds");
    QTest::addColumn<int>("hardwareId");
    QTest::addColumn<bool>("hiddenFlag");
    QTest::addColumn<int>("licenceGate");
    QTest::addColumn<int>("licenceLevel");
    QTest::addColumn<bool>("visible");

    struct Case
    {
        const char *name;
        uint version;
        IntMap min, max;
        IntList ids;
        int id;
        bool hidden;
        int gate, level;
        bool visible;
    };
    const Case cases[] = {
        {"inside range", 10, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, true},
        {"at minimum", 5, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, true},
        {"below minimum", 4, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, false},
        {"at maximum", 20, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, true},
        {"above maximum", 21, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, false},
        {"maximum 0 is open", 5000, {{0, 5}}, {{0, 0}}, {}, 1, false, 0, 0, true},
        {"no minimum: 99", 98, {}, {}, {}, 1, false, 0, 0, false},
        {"no minimum, version 99", 99, {}, {}, {}, 1, false, 0, 0, true},
        {"negative minimum compares unsigned", 10, {{0, -1}}, {}, {}, 1, false, 0, 0, false},
        {"hardware listed", 10, {{0, 0}}, {}, {3, 4}, 4, false, 0, 0, true},
        {"hardware not listed", 10, {{0, 0}}, {}, {3, 4}, 5, false, 0, 0, false},
        {"hidden flag", 10, {{0, 0}}, {}, {}, 1, true, 0, 0, false},
        {"licence gate closed", 10, {{0, 0}}, {}, {}, 1, false, 2, 1, false},
        {"licence gate equal", 10, {{0, 0}}, {}, {}, 1, false, 2, 2, true},
        {"licence gate below", 10, {{0, 0}}, {}, {}, 1, false, 1, 3, true},
    };
    for (const QString &kind : anyControlKinds())
        for (const Case &c : cases)
            QTest::addRow("%s: %s", qPrintable(kind), c.name)
                << kind << c.version << c.min << c.max << c.ids << c.id << c.hidden << c.gate
                << c.level << c.visible;
}

void TestBoundProtocol::visibility()
{
    QFETCH(QString, kind);
    QFETCH(uint, version);
    QFETCH(IntMap, minVersions);
    QFETCH(IntMap, maxVersions);
    QFETCH(IntList, hardwareIds);
    QFETCH(int, hardwareId);
    QFETCH(bool, hiddenFlag);
    QFETCH(int, licenceGate);
    QFETCH(int, licenceLevel);
    QFETCH(bool, visible);

    TestHost host;
    host.setVersion(version);
    MainConfigObject &object = host.add(10, 1, 1);
    object.minVersions = minVersions;
    object.maxVersions = maxVersions;
    object.hardwareIds = hardwareIds;
    object.hidden = hiddenFlag;
    object.licenceGate = licenceGate;
    setGUILicenseLevel(licenceLevel);

    QWidget form;
    AnyControl control = makeAnyControl(kind);
    control.widget->setParent(&form);
    QLabel label(&form), related1(&form), related2(&form);
    control.setReference(&host, 10, &label, {&related1, &related2});
    form.show();
    control.updateControl(hardwareId);
    QCOMPARE(control.widget->isVisible(), visible);
    QCOMPARE(related1.isVisible(), visible);
    QCOMPARE(related2.isVisible(), visible);
    // The label given to the binding is the host's to show or hide.
    QVERIFY(label.isVisible());
}

void TestBoundProtocol::hardwareIdZeroMeansLast()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1).hardwareIds = {7};
    QWidget form;
    AnyControl control = makeAnyControl(kind);
    control.widget->setParent(&form);
    control.setReference(&host, 10, nullptr, {});
    form.show();
    control.updateControl(7);
    QVERIFY(control.widget->isVisible());
    control.updateControl(0);
    QVERIFY(control.widget->isVisible());
    control.updateControl(8);
    QVERIFY(!control.widget->isVisible());
    control.updateControl(0);
    QVERIFY(!control.widget->isVisible());
}

void TestBoundProtocol::unboundRefreshLosesId()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1).hardwareIds = {7};
    QWidget form;
    AnyControl control = makeAnyControl(kind);
    control.widget->setParent(&form);
    form.show();
    control.updateControl(7); // unbound: the id is not remembered
    control.setReference(&host, 10, nullptr, {});
    control.updateControl(0);
    QVERIFY(!control.widget->isVisible());
}

void TestBoundProtocol::setHiddenRecordsRequest()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1);
    QWidget form;
    AnyControl control = makeAnyControl(kind);
    control.widget->setParent(&form);
    QLabel related(&form);
    form.show();

    control.setHidden(true); // unbound: hides, records nothing, no crash
    QVERIFY(!control.widget->isVisible());

    control.setReference(&host, 10, nullptr, {&related});
    control.setHidden(true);
    QVERIFY(host.records[10].hidden);
    QVERIFY(!related.isVisible());
    control.setHidden(false);
    QVERIFY(!host.records[10].hidden);
    QVERIFY(control.widget->isVisible());
    QVERIFY(related.isVisible());

    // setHidden(false) shows only what the other rules allow.
    host.setVersion(1);
    host.records[10].minVersions = {{0, 5}};
    control.setHidden(false);
    QVERIFY(!control.widget->isVisible());
}

void TestBoundProtocol::enableGate()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1);
    AnyControl control = makeAnyControl(kind);
    control.setReference(&host, 10, nullptr, {});
    QWidget *widget = control.widget.get();

    control.setEnabled(false);
    QVERIFY(!widget->isEnabled());
    control.updateEnableState(true); // opening the gate does not enable
    QVERIFY(!widget->isEnabled());
    control.setEnabled(true);
    QVERIFY(widget->isEnabled());
    control.updateEnableState(false); // closing it disables
    QVERIFY(!widget->isEnabled());
    control.setEnabled(true); // no effect while closed
    QVERIFY(!widget->isEnabled());
    control.updateEnableState(true);
    QVERIFY(!widget->isEnabled());
    control.setEnabled(true);
    QVERIFY(widget->isEnabled());
}

void TestBoundProtocol::errorFlag()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1);
    AnyControl control = makeAnyControl(kind);
    QVERIFY(!control.isError());
    control.setError(true);
    QVERIFY(control.isError());
    control.setReference(&host, 10, nullptr, {}); // binding clears it
    QVERIFY(!control.isError());
}

void TestBoundProtocol::rebuiltRecordIsRefetched()
{
    QFETCH(QString, kind);
    TestHost host;
    host.add(10, 1, 1);
    QWidget form;
    AnyControl control = makeAnyControl(kind);
    control.widget->setParent(&form);
    control.setReference(&host, 10, nullptr, {});
    form.show();
    control.updateControl(1);
    QVERIFY(control.widget->isVisible());
    // The host rebuilds its table: the control must look at the new record.
    host.records.clear();
    host.setVersion(10);
    host.add(10, 1, 1).hidden = true;
    control.updateControl(0);
    QVERIFY(!control.widget->isVisible());
}

void TestBoundProtocol::lookFollowsErrorAndEnabled_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("errorPaints");
    QTest::addColumn<bool>("enabledPaints");

    // Deliberately uneven: only these two show `error`, only these two the enabled state.
    const QMap<QString, QPair<bool, bool>> looks{
        {"checkbox", {false, true}},       {"combobox", {true, true}},
        {"lineedit", {true, false}},       {"spinbox", {false, false}},
        {"doublespinbox", {false, false}}, {"radiobutton", {false, false}},
    };
    for (const QString &kind : valueControlKinds()) {
        QVERIFY2(looks.contains(kind), qPrintable(kind));
        QTest::newRow(qPrintable(kind)) << kind << looks[kind].first << looks[kind].second;
    }
}

void TestBoundProtocol::lookFollowsErrorAndEnabled()
{
    QFETCH(QString, kind);
    QFETCH(bool, errorPaints);
    QFETCH(bool, enabledPaints);

    TestHost host;
    host.add(10, 1, 1);
    AnyControl control = makeAnyControl(kind);
    control.setReference(&host, 10, nullptr, {});
    control.updateControl(1);
    const QString normal = control.widget->styleSheet();
    QVERIFY(!normal.isEmpty());

    control.setError(true);
    QCOMPARE(control.widget->styleSheet(), normal); // setError alone repaints nothing
    control.updateControl(0);
    QCOMPARE(control.widget->styleSheet() != normal, errorPaints);
    control.setError(false);
    control.updateControl(0);
    QCOMPARE(control.widget->styleSheet(), normal);

    control.setEnabled(false);
    QCOMPARE(control.widget->styleSheet() != normal, enabledPaints);
}

void TestBoundProtocol::editsReachTheLiveRecord()
{
    QFETCH(QString, kind);
    TestHost host;
    auto addRecord = [&host] {
        MainConfigObject &object = host.add(10, 4, 1u);
        object.minimum = 0u;
        object.maximum = 10u;
        object.step = 1;
        object.options = {{0, {"zero", "0"}}, {1, {"one", "1"}}};
    };
    addRecord();
    AnyControl control = makeAnyControl(kind);
    control.setReference(&host, 10, nullptr, {});
    control.updateControl(1);
    host.writes.clear();
    control.userEdit();
    QVERIFY(!host.writes.isEmpty());
    for (const TestHost::Write &write : qAsConst(host.writes))
        QCOMPARE(write.ref, 10);

    // The host rebuilds its table between two edits: the next one goes to the new record.
    host.records.clear();
    host.setVersion(10);
    addRecord();
    host.writes.clear();
    control.userEdit();
    QVERIFY(!host.writes.isEmpty());
    QCOMPARE(host.records[10].control, nullptr); // binding is not repeated behind its back
}

void TestBoundProtocol::unboundOrNullInterfaceNeverCrashes()
{
    QFETCH(QString, kind);
    AnyControl control = makeAnyControl(kind);
    QLabel label;
    auto exercise = [&] {
        control.updateControl(3);
        if (control.userEdit)
            control.userEdit();
        control.setEnabled(false);
        control.updateEnableState(false);
        control.updateEnableState(true);
        control.setEnabled(true);
        control.setHidden(true);
        control.setHidden(false);
        control.setError(true);
        control.updateControl(0);
        if (control.userEdit)
            control.userEdit();
    };
    exercise();
    control.setReference(nullptr, 10, &label, {&label}); // a host passing no table
    exercise();
    QVERIFY(control.widget->isEnabled());
}

QTEST_MAIN(TestBoundProtocol)
#include "tst_boundprotocol.moc"
