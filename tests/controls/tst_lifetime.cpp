// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// Object lifetime as hosts live it, over every kind of control: widgets the host deletes or
// never had, controls deleted from their own signals, the library's dialogs deleted with their
// parent while open, and a parameter table rebuilt between calls.
#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/import/readblockconfigwizard.h"
#include "tests/support/anycontrol.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>

namespace {
const int ref = 10;

// One control on a shown page the host owns, with a label and two related widgets.
struct Page
{
    QPointer<QWidget> form = new QWidget;
    AnyControl control;
    QPointer<QWidget> self;
    QPointer<QLabel> label = new QLabel(form), related1 = new QLabel(form),
                     related2 = new QLabel(form);

    explicit Page(const QString &kind) : control(makeAnyControl(kind))
    {
        self = control.widget.get();
        control.widget.release()->setParent(form); // the page owns it now
        form->show();
    }
    ~Page() { delete form.data(); }
};

// Replaces every record by a copy, as a host does that rebuilds its table: a reference the
// library kept into the old one then points at freed memory.
void rebuild(TestHost &host)
{
    QMap<int, MainConfigObject> fresh;
    for (auto it = host.records.cbegin(); it != host.records.cend(); ++it)
        fresh.insert(it.key(), MainConfigObject(it.value()));
    host.records.swap(fresh);
}

void dropPosted()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
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

class TestLifetime : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase() { allowListConnectionWarning(); }
    void relatedWidgetsGoneOrNull_data();
    void relatedWidgetsGoneOrNull();
    void deletedFromItsOwnSignal_data();
    void deletedFromItsOwnSignal();
    void tableRebuiltBetweenCalls_data() { kinds(); }
    void tableRebuiltBetweenCalls();
    void dialogDeletedWithItsParent_data();
    void dialogDeletedWithItsParent();

private:
    static void kinds()
    {
        QTest::addColumn<QString>("kind");
        for (const QString &kind : anyControlKinds())
            row(qPrintable(kind), kind);
    }
};

void TestLifetime::relatedWidgetsGoneOrNull_data()
{
    // nulls: else: given, then deleted by the host
    columns<QString, bool>("kind", "nulls");
    for (const QString &kind : anyControlKinds()) {
        QTest::addRow("%s: deleted", qPrintable(kind)) << kind << false;
        QTest::addRow("%s: null", qPrintable(kind)) << kind << true;
    }
}

void TestLifetime::relatedWidgetsGoneOrNull()
{
    auto [kind, nulls] = fetch<QString, bool>("kind", "nulls");
    TestHost host;
    addEditableRecord(host, kind, ref).hardwareIds = {7};
    Page page(kind);
    if (nulls) {
        page.control.setReference(&host, ref, nullptr, {nullptr, page.related2, nullptr});
    } else {
        page.control.setReference(&host, ref, page.label, {page.related1, page.related2});
        delete page.label.data();
        delete page.related1.data();
    }
    // The whole protocol still runs, and the widgets that remain still follow it.
    page.control.updateControl(8);
    QVERIFY(!page.related2->isVisible());
    page.control.updateControl(7);
    QVERIFY(page.related2->isVisible());
    page.control.setHidden(true);
    QVERIFY(!page.related2->isVisible());
    page.control.setHidden(false);
    QVERIFY(page.related2->isVisible());
    page.control.userEdit();
    page.control.updateEnableState(false);
    page.control.setEnabled(true);
    page.control.setError(true);
    page.control.updateControl(0);
    QVERIFY(!host.writes.isEmpty());
    QCOMPARE(host.records[ref].control, page.self.data());
}

void TestLifetime::deletedFromItsOwnSignal_data()
{
    columns<QString, bool>("kind", "wholeForm");
    for (const QString &kind : anyControlKinds()) {
        if (!makeAnyControl(kind).editSignal)
            continue; // a kind with no signal of its own (the list editor: its list is "list")
        QTest::addRow("%s: control", qPrintable(kind)) << kind << false;
        QTest::addRow("%s: form", qPrintable(kind)) << kind << true;
    }
}

void TestLifetime::deletedFromItsOwnSignal()
{
    auto [kind, wholeForm] = fetch<QString, bool>("kind", "wholeForm");
    TestHost host;
    addEditableRecord(host, kind, ref);
    Page page(kind);
    page.control.setReference(&host, ref, page.label, {page.related1});
    Dropper dropper;
    dropper.target = wholeForm ? static_cast<QObject *>(page.form) : page.self.data();
    QVERIFY(QObject::connect(page.self, page.control.editSignal, &dropper, SLOT(drop())));
    page.control.userEdit();
    QVERIFY(!host.writes.isEmpty());
    dropPosted();
    QVERIFY(page.self.isNull());
    QCOMPARE(page.form.isNull(), wholeForm);
}

void TestLifetime::tableRebuiltBetweenCalls()
{
    QFETCH(QString, kind);
    TestHost host;
    addEditableRecord(host, kind, ref);
    host.onWrite = [&host](int, const QVariant &) { rebuild(host); };
    Page page(kind);
    page.control.setReference(&host, ref, page.label, {page.related1});
    const auto steps = std::initializer_list<std::function<void()>>{
        [&] { page.control.updateControl(3); },
        [&] { page.control.userEdit(); },
        [&] { page.control.setHidden(true); },
        [&] { page.control.setHidden(false); },
        [&] { page.control.updateEnableState(false); },
        [&] { page.control.updateEnableState(true); },
        [&] { page.control.setEnabled(true); },
        [&] { page.control.setReference(&host, ref, page.label, {page.related1}); },
        [&] { page.control.userEdit(); },
    };
    for (const auto &step : steps) {
        rebuild(host);
        step();
    }
    QVERIFY(host.writes.size() >= 2);
    // A refresh reads the rebuilt record, not the one it was bound to.
    rebuild(host);
    host.records[ref].minVersions = {{0, 50}};
    page.control.updateControl(0);
    QVERIFY(!page.self->isVisible());
    QVERIFY(!page.related1->isVisible());
}

void TestLifetime::dialogDeletedWithItsParent_data()
{
    QTest::addColumn<int>("opener");
    row("list: duplicate add", 0);
    row("list: in-place edit onto a present text", 1);
    row("table: duplicate add", 2);
    row("table: cell emptied", 3);
    row("import wizard", 4);
}

// Whatever of the library opens a modal dialog and goes on after it, the host deletes the page
// under it while it is open.
void TestLifetime::dialogDeletedWithItsParent()
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

QTEST_MAIN(TestLifetime)
#include "tst_lifetime.moc"
