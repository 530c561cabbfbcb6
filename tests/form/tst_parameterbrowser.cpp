// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/parameterbrowser.h"
#include "telecfg/form/parameterfilter.h"
#include "telecfg/form/parametermodel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

class TestParameterBrowser : public QObject
{
    Q_OBJECT

private slots:
    void oneRowPerChange();
    void filters_data();
    void filters();
    void editsWithTheControlsRules_data();
    void editsWithTheControlsRules();
    void keyboardFirst();
};

namespace {
const QByteArray json = R"({"version": 5, "pages": ["Paliwo", "CAN"], "parameters": [
    {"ref": 101, "type": 22, "value": 0, "page": "Paliwo", "control": "checkbox",
     "label": "Pomiar paliwa", "toolTip": "Czujnik w zbiorniku"},
    {"ref": 102, "minimum": 0, "maximum": 100, "step": 5, "value": 10, "page": "Paliwo",
     "control": "spinbox", "label": "Pojemność", "maxVersion": 7},
    {"ref": 103, "value": "250", "page": "CAN", "control": "combobox", "label": "Prędkość",
     "options": [["125 kbit/s", "125"], ["250 kbit/s", "250"]]},
    {"ref": 104, "type": 4, "minimum": 0, "value": 0, "group": 9, "page": "CAN",
     "control": "radiobutton", "label": "Tryb", "text": "Nasłuch"},
    {"ref": 105, "type": 4, "minimum": 1, "value": 0, "group": 9, "page": "CAN",
     "control": "radiobutton", "text": "Aktywny", "minVersion": 9}]})";

struct Browser
{
    ParameterTable table;
    FormState state{&table};
    ParameterBrowser browser{&state};

    Browser()
    {
        if (!table.loadJson(json))
            qFatal("no table");
        browser.resize(800, 400);
        browser.show();
    }
    QList<int> shownRefs() const
    {
        QList<int> refs;
        QAbstractItemModel *model = browser.view()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            refs.append(model->index(row, 0).data(ParameterModel::ParameterRole).toInt());
        return refs;
    }
    QModelIndex valueOf(int ref) const
    {
        QAbstractItemModel *model = browser.view()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            if (model->index(row, 0).data(ParameterModel::ParameterRole).toInt() == ref)
                return model->index(row, ParameterModel::ValueColumn);
        return {};
    }
};
} // namespace

void TestParameterBrowser::oneRowPerChange()
{
    Browser b;
    ParameterModel *model = b.browser.model();
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    b.table.setValue(103, QStringLiteral("125"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].toModelIndex().row(), model->rowOf(103));
    QCOMPARE(changed[0][1].toModelIndex().row(), model->rowOf(103));
    QCOMPARE(reset.count(), 0);
    const QModelIndex row = model->index(model->rowOf(103), 0);
    QCOMPARE(row.siblingAtColumn(ParameterModel::NameColumn).data().toString(),
             QStringLiteral("Prędkość"));
    QCOMPARE(row.siblingAtColumn(ParameterModel::ValueColumn).data().toString(),
             QStringLiteral("125 kbit/s"));
    QCOMPARE(row.siblingAtColumn(ParameterModel::StoredColumn).data().toString(),
             QStringLiteral("250 kbit/s"));
    QVERIFY(row.data(ParameterModel::ModifiedRole).toBool());
}

void TestParameterBrowser::filters_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<int>("toggle"); // 0 none, 1 changed, 2 shown, 3 invalid, 4 page CAN
    QTest::addColumn<QList<int>>("refs");

    QTest::newRow("everything") << QString() << 0 << QList<int>{101, 102, 103, 104, 105};
    QTest::newRow("by number") << "103" << 0 << QList<int>{103};
    QTest::newRow("by name, any case") << "POJEM" << 0 << QList<int>{102};
    QTest::newRow("by description") << "czujnik" << 0 << QList<int>{101};
    QTest::newRow("by option text") << "kbit" << 0 << QList<int>{103};
    QTest::newRow("every word") << "kbit pojem" << 0 << QList<int>{};
    QTest::newRow("changed only") << QString() << 1 << QList<int>{102};
    QTest::newRow("shown for the device only") << QString() << 2 << QList<int>{101, 102, 103, 104};
    QTest::newRow("invalid only") << QString() << 3 << QList<int>{102};
    QTest::newRow("one page") << QString() << 4 << QList<int>{103, 104, 105};
}

void TestParameterBrowser::filters()
{
    QFETCH(QString, search);
    QFETCH(int, toggle);
    Browser b;
    b.table.setValue(102, 12u); // modified and off the step
    ParameterFilter *filter = b.browser.filter();
    filter->setSearchText(search);
    filter->setChangedOnly(toggle == 1);
    filter->setShownOnly(toggle == 2);
    filter->setInvalidOnly(toggle == 3);
    filter->setPage(toggle == 4 ? QStringLiteral("CAN") : QString());
    QTEST(b.shownRefs(), "refs");
}

void TestParameterBrowser::editsWithTheControlsRules_data()
{
    QTest::addColumn<int>("ref");
    QTest::addColumn<QVariant>("typed");
    QTest::addColumn<QVariant>("written");
    QTest::addColumn<uint>("version");

    // The spin box's bounds hold in the browser as on the page.
    QTest::newRow("spin box, within") << 102 << QVariant(35) << QVariant(35) << 5u;
    QTest::newRow("spin box, above its maximum") << 102 << QVariant(500) << QVariant(100) << 5u;
    QTest::newRow("radio choice as a list") << 104 << QVariant(1) << QVariant(1u) << 5u;
    // A parameter the device does not show is still edited here, and the edit stays open.
    QTest::newRow("spin box hidden for the device") << 102 << QVariant(35) << QVariant(35) << 8u;
}

void TestParameterBrowser::editsWithTheControlsRules()
{
    QFETCH(int, ref);
    QFETCH(QVariant, typed);
    QFETCH(uint, version);
    Browser b;
    b.table.setVersion(version);
    // A page bound to the same table follows the browser's edits.
    QWidget page;
    auto *spin = new CfgSpinBox(&page);
    spin->setObjectName(QStringLiteral("cfg_102"));
    FormBinder binder;
    binder.follow(&b.state);
    binder.bind(&page, &b.table);

    QTableView *view = b.browser.view();
    const QModelIndex index = b.valueOf(ref);
    view->setCurrentIndex(index);
    view->edit(index);
    QPointer<QWidget> editor = view->indexWidget(index);
    QVERIFY(editor);
    if (auto *box = qobject_cast<CfgSpinBox *>(editor)) {
        QCOMPARE(box->maximum(), 100);
        box->setValue(typed.toInt());
    } else if (auto *choices = qobject_cast<QComboBox *>(editor)) {
        QCOMPARE(choices->count(), 2);
        choices->setCurrentIndex(typed.toInt());
        QTest::keyClick(editor, Qt::Key_Return);
    }
    QFETCH(QVariant, written);
    QTRY_COMPARE(b.table.value(ref), written);
    QCOMPARE(spin->value(), b.table.value(102).toInt());
    QVERIFY(!qobject_cast<CfgSpinBox *>(editor) || editor->isVisible());
    if (editor)
        QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!editor);

    // Escape takes back what the editor wrote.
    b.table.setValue(102, 10u);
    view->edit(b.valueOf(102));
    auto *box = view->viewport()->findChild<CfgSpinBox *>();
    QVERIFY(box);
    box->setValue(45);
    QCOMPARE(b.table.value(102).toInt(), 45);
    QTest::keyClick(box, Qt::Key_Escape);
    QCOMPARE(b.table.value(102).toInt(), 10);
}

void TestParameterBrowser::keyboardFirst()
{
    Browser b;
    QTableView *view = b.browser.view();
    view->setFocus();
    QTest::keyClicks(view, QStringLiteral("pr"));
    QCOMPARE(b.browser.searchField()->text(), QStringLiteral("pr"));
    QTRY_COMPARE(b.shownRefs(), QList<int>{103}); // after the typing pause
    view->setFocus();
    view->setCurrentIndex(view->model()->index(0, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QVERIFY(view->viewport()->findChild<QComboBox *>());
    // The search field's clear button fades in; ending inside the fade leaks its animation.
    for (QWidget *clear : b.browser.searchField()->findChildren<QWidget *>())
        if (clear->property("opacity").isValid())
            QTRY_COMPARE(clear->property("opacity").toReal(), 1.0);
}

QTEST_MAIN(TestParameterBrowser)
#include "tst_parameterbrowser.moc"
