// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The protocol every bound control shares, run over every kind of control, and object
// lifetime as hosts live it: widgets the host deletes or never had, controls deleted from
// their own signals, a parameter table rebuilt between calls, and the library's dialogs
// deleted with their parent while open.
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/dialogs/gui.h"
#include "telecfg/import/readblockconfigwizard.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

namespace {
const int ref = 10;

// One control on a shown form the host owns, with a label and two related widgets.
struct Form
{
    QPointer<QWidget> form = new QWidget;
    AnyControl control;
    QPointer<QLabel> label = new QLabel(form), related1 = new QLabel(form),
                     related2 = new QLabel(form);

    explicit Form(const QString &kind) : control(kind, form) { form->show(); }
    ~Form() { delete form.data(); }
    void bind(MainConfigIFace *host)
    {
        control.setReference(host, ref, label, {related1, related2});
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

// Deletes its target later, from whatever signal it is connected to.
class Dropper : public QObject
{
    Q_OBJECT
public:
    QPointer<QObject> target;
public slots:
    void drop()
    {
        if (target)
            target->deleteLater();
    }
};

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
        MainConfigObject &object = host.add(ref, 1, 1);
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
        QCOMPARE(f.related1->isVisible(), c.visible);
        QVERIFY(f.label->isVisible()); // the label given to the binding is the host's to show
        QCOMPARE(host.records[ref].control, f.control.widget.data());
        QCOMPARE(host.records[ref].label, f.label.data());
    }

    void protocolOverLifetimes_data()
    {
        columns<QString, QString>("kind", "life");
        for (const QString &kind : anyControlKinds())
            for (const char *life : {"plain", "label and related deleted", "nulls given",
                                     "table rebuilt at every step"})
                QTest::addRow("%s: %s", qPrintable(kind), life) << kind << QString(life);
    }

    // The whole protocol runs whatever the host did to the widgets beside the control or to
    // its table, and the widgets that remain follow it.
    void protocolOverLifetimes()
    {
        auto [kind, life] = fetch<QString, QString>("kind", "life");
        TestHost host;
        addEditableRecord(host, kind, ref).hardwareIds = {7};
        Form f(kind);
        const bool rebuilt = life.startsWith(QLatin1String("table"));
        if (rebuilt)
            host.onWrite = [&host](int, const QVariant &) { host.rebuild(); };
        const auto step = [&] {
            if (rebuilt)
                host.rebuild();
            return &f.control;
        };
        if (life == QLatin1String("nulls given"))
            f.control.setReference(&host, ref, nullptr, {nullptr, f.related2, nullptr});
        else
            f.bind(&host);
        if (life.startsWith(QLatin1String("label"))) {
            delete f.label.data();
            delete f.related1.data();
        }
        step()->updateControl(7);
        QVERIFY(f.shown() && f.related2->isVisible());
        step()->updateControl(8);
        step()->updateControl(0); // 0 means the last id given
        QVERIFY(!f.shown() && !f.related2->isVisible());
        step()->updateControl(7);
        step()->setHidden(true);
        QVERIFY(host.records[ref].hidden && !f.related2->isVisible());
        step()->setHidden(false);
        QVERIFY(!host.records[ref].hidden && f.related2->isVisible());
        step()->userEdit();
        QVERIFY(!host.writes.isEmpty());
        step()->updateEnableState(false);
        step()->setEnabled(true);
        step()->setError(true);
        step()->setReference(&host, ref, f.label, {f.related1, f.related2});
        step()->userEdit();
        QCOMPARE(host.records[ref].control, f.control.widget.data());

        // A refresh reads the rebuilt record, not the one it was bound to.
        host.records.clear();
        host.setVersion(1);
        host.add(ref, 1, 1).minVersions = {{0, 5}};
        f.control.setHidden(false); // shows only what the other rules allow
        QVERIFY(!f.shown() && !f.related2->isVisible());
    }

    void enableGateAndErrorFlag_data() { kinds(); }

    void enableGateAndErrorFlag()
    {
        QFETCH(QString, kind);
        TestHost host;
        host.add(ref, 1, 1);
        AnyControl control(kind);
        control.setError(true);
        QVERIFY(control.isError());
        control.setReference(&host, ref, nullptr, {}); // binding clears it
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
        AnyControl control(kind);
        QLabel label;
        for (int pass = 0; pass < 2; ++pass) {
            if (pass == 1)
                control.setReference(nullptr, ref, &label, {&label}); // a host passing no table
            control.updateControl(3);
            control.userEdit();
            control.updateEnableState(false);
            control.setHidden(false);
            control.updateControl(0);
        }
    }

    void deletedFromItsOwnSignal_data()
    {
        columns<QString, bool>("kind", "wholeForm");
        for (const QString &kind : anyControlKinds()) {
            if (!AnyControl(kind).editSignal())
                continue; // a kind with no signal of its own (the list editor: its list is "list")
            QTest::addRow("%s: control", qPrintable(kind)) << kind << false;
            QTest::addRow("%s: form", qPrintable(kind)) << kind << true;
        }
    }

    void deletedFromItsOwnSignal()
    {
        auto [kind, wholeForm] = fetch<QString, bool>("kind", "wholeForm");
        TestHost host;
        addEditableRecord(host, kind, ref);
        Form f(kind);
        f.bind(&host);
        const QPointer<QWidget> self = f.control.widget;
        Dropper dropper;
        dropper.target = wholeForm ? static_cast<QObject *>(f.form) : self.data();
        QVERIFY(QObject::connect(self, f.control.editSignal(), &dropper, SLOT(drop())));
        f.control.userEdit();
        QVERIFY(!host.writes.isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(self.isNull());
        QCOMPARE(f.form.isNull(), wholeForm);
    }

    void dialogDeletedWithItsParent_data()
    {
        QTest::addColumn<int>("opener");
        row("list: duplicate add", 0);
        row("list: in-place edit onto a present text", 1);
        row("table: duplicate add", 2);
        row("table: cell emptied", 3);
        row("import wizard", 4);
    }

    // Whatever of the library opens a modal dialog and goes on after it, the host deletes the
    // page under it while it is open.
    void dialogDeletedWithItsParent()
    {
        QFETCH(int, opener);
        TestHost host;
        QPointer<QWidget> form = new QWidget;
        form->show();
        ModalCatcher catcher([&form](QWidget *) { delete form.data(); });
        QLineEdit editor;
        if (opener <= 1) {
            addEditableRecord(host, QStringLiteral("list"), ref);
            auto *list = new CfgListWidget(form);
            list->setReference(&host, ref, nullptr, {});
            QCOMPARE(list->addValue(QVariant(5u), ref), 0);
            if (opener == 0) {
                QCOMPARE(list->addValue(QVariant(5u), ref), 1);
            } else {
                list->setCurrentRow(0);
                list->ListWidgetEditEnd(&editor, QAbstractItemDelegate::NoHint);
            }
        } else if (opener <= 3) {
            addEditableRecord(host, QStringLiteral("table"), ref);
            auto *table = new CfgTableWidget(form);
            table->setReference(&host, ref, nullptr, {});
            const QVariant row = QVariant(QStringList{QStringLiteral("5"), QStringLiteral("x")});
            QCOMPARE(table->addValue(row, ref), 0);
            if (opener == 2) {
                QCOMPARE(table->addValue(row, ref), 1);
            } else {
                table->setCurrentCell(0, 0);
                table->currentItem()->setText(QString());
                table->ListWidgetEditEnd(nullptr, QAbstractItemDelegate::NoHint);
            }
        } else {
            auto *wizard = new ReadBlockConfigWizard(QStringLiteral("/nonexistent"), form);
            QCOMPARE(wizard->exec(QString()), 1);
        }
        QVERIFY(form.isNull());
        QCOMPARE(catcher.seen.size(), 1);
    }

private:
    static void kinds()
    {
        QTest::addColumn<QString>("kind");
        for (const QString &kind : anyControlKinds())
            row(qPrintable(kind), kind);
    }
};

QTEST_MAIN(TestBoundProtocol)
#include "tst_boundprotocol.moc"
