// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The protocol every bound control shares, run over every kind of control.
#include "telecfg/dialogs/gui.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QLabel>
#include <QtTest>

namespace {
// One control on a shown form, with a label and two related widgets beside it.
struct Form
{
    QWidget form;
    AnyControl control;
    QLabel label{&form}, related1{&form}, related2{&form};

    explicit Form(const QString &kind) : control(makeAnyControl(kind))
    {
        control.widget->setParent(&form);
        form.show();
    }
    void bind(MainConfigIFace *host)
    {
        control.setReference(host, 10, &label, {&related1, &related2});
    }
    bool shown() const { return control.widget->isVisible(); }
};

struct Visibility
{
    const char *name;
    uint version;
    QMap<int, int> min, max;
    QList<int> ids;
    int id;
    bool hidden;
    int gate, level;
    bool visible;
};
const Visibility visibilities[] = {
    {"at minimum", 5, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, true},
    {"below minimum", 4, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, false},
    {"at maximum", 20, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, true},
    {"above maximum", 21, {{0, 5}}, {{0, 20}}, {}, 1, false, 0, 0, false},
    {"maximum 0 is open", 5000, {{0, 5}}, {{0, 0}}, {}, 1, false, 0, 0, true},
    {"no minimum, version 99", 99, {}, {}, {}, 1, false, 0, 0, true},
    {"negative minimum compares unsigned", 10, {{0, -1}}, {}, {}, 1, false, 0, 0, false},
    {"hardware listed", 10, {{0, 0}}, {}, {3, 4}, 4, false, 0, 0, true},
    {"hardware not listed", 10, {{0, 0}}, {}, {3, 4}, 5, false, 0, 0, false},
    {"hidden flag", 10, {{0, 0}}, {}, {}, 1, true, 0, 0, false},
    {"licence gate closed", 10, {{0, 0}}, {}, {}, 1, false, 2, 1, false},
    {"licence gate equal", 10, {{0, 0}}, {}, {}, 1, false, 2, 2, true},
};
} // namespace

class TestBoundProtocol : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { allowListConnectionWarning(); }
    void cleanup() { setGUILicenseLevel(0); }

    void visibility_data()
    {
        // row: into visibilities
        columns<QString, int>("kind", "row");
        for (const QString &kind : anyControlKinds())
            for (int i = 0; i < int(std::size(visibilities)); ++i)
                QTest::addRow("%s: %s", qPrintable(kind), visibilities[i].name) << kind << i;
    }

    void visibility()
    {
        auto [kind, row] = fetch<QString, int>("kind", "row");
        const Visibility &c = visibilities[row];
        TestHost host;
        host.setVersion(c.version);
        MainConfigObject &object = host.add(10, 1, 1);
        object.minVersions = c.min;
        object.maxVersions = c.max;
        object.hardwareIds = c.ids;
        object.hidden = c.hidden;
        object.licenceGate = c.gate;
        setGUILicenseLevel(c.level);

        Form f(kind);
        f.bind(&host);
        f.control.updateControl(c.id);
        QCOMPARE(f.shown(), c.visible);
        QCOMPARE(f.related1.isVisible(), c.visible);
        QVERIFY(f.label.isVisible()); // the label given to the binding is the host's to show
        QCOMPARE(host.records[10].control, f.control.widget.get());
        QCOMPARE(host.records[10].label, &f.label);
    }

    void refreshAndHiddenFollowTheLiveRecord_data() { kinds(); }

    void refreshAndHiddenFollowTheLiveRecord()
    {
        QFETCH(QString, kind);
        TestHost host;
        host.add(10, 1, 1).hardwareIds = {7};
        Form f(kind);
        f.bind(&host);
        f.control.updateControl(7);
        QVERIFY(f.shown());
        f.control.updateControl(8);
        f.control.updateControl(0); // 0 means the last id given
        QVERIFY(!f.shown());
        f.control.updateControl(7);

        f.control.setHidden(true);
        QVERIFY(host.records[10].hidden);
        QVERIFY(!f.related1.isVisible());
        f.control.setHidden(false);
        QVERIFY(!host.records[10].hidden);
        QVERIFY(f.related1.isVisible());

        // The host rebuilds its table: the control must look at the new record.
        host.records.clear();
        host.setVersion(1);
        host.add(10, 1, 1).minVersions = {{0, 5}};
        f.control.setHidden(false); // shows only what the other rules allow
        QVERIFY(!f.shown());
    }

    void enableGateAndErrorFlag_data() { kinds(); }

    void enableGateAndErrorFlag()
    {
        QFETCH(QString, kind);
        TestHost host;
        host.add(10, 1, 1);
        AnyControl control = makeAnyControl(kind);
        control.setError(true);
        QVERIFY(control.isError());
        control.setReference(&host, 10, nullptr, {}); // binding clears it
        QVERIFY(!control.isError());

        // setEnabled (or the gate, updateEnableState) with the state it must leave.
        const struct
        {
            bool gate, on, enabled;
        } steps[] = {
            {false, false, false}, {true, true, false}, {false, true, true}, {true, false, false},
            {false, true, false},  {true, true, false}, {false, true, true},
        };
        for (const auto &step : steps) {
            if (step.gate)
                control.updateEnableState(step.on);
            else
                control.setEnabled(step.on);
            QCOMPARE(control.widget->isEnabled(), step.enabled);
        }
    }

    void unboundOrNullInterfaceNeverCrashes_data() { kinds(); }

    void unboundOrNullInterfaceNeverCrashes()
    {
        QFETCH(QString, kind);
        AnyControl control = makeAnyControl(kind);
        QLabel label;
        for (int pass = 0; pass < 2; ++pass) {
            if (pass == 1)
                control.setReference(nullptr, 10, &label, {&label}); // a host passing no table
            control.updateControl(3);
            if (control.userEdit)
                control.userEdit();
            control.updateEnableState(false);
            control.setHidden(false);
            control.updateControl(0);
        }
    }

private:
    static void kinds(const QStringList &names = anyControlKinds())
    {
        QTest::addColumn<QString>("kind");
        for (const QString &kind : names)
            row(qPrintable(kind), kind);
    }
};

QTEST_MAIN(TestBoundProtocol)
#include "tst_boundprotocol.moc"
