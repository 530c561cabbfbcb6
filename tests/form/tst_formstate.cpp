// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "tests/support/datatable.h"
#include "tests/support/testhost.h"

#include <QtTest>

namespace {
const QByteArray json = R"({"version": 1, "parameters": [
    {"ref": 101, "type": 22, "value": 0},
    {"ref": 102, "minimum": 0, "maximum": 100, "step": 5, "value": 10},
    {"ref": 103, "type": 4, "minimum": 0, "value": 0, "group": 9},
    {"ref": 104, "type": 4, "minimum": 1, "value": 0, "group": 9},
    {"ref": 105, "type": 16, "value": "ab"}]})";

struct Form
{
    ParameterTable table;
    QWidget widget;
    FormBinder binder;

    Form()
    {
        const QList<QPair<QWidget *, const char *>> controls = {
            {new CfgCheckBox(&widget), "cfg_101"},
            {new CfgSpinBox(&widget), "cfg_102"},
            {new CfgRadioButton(&widget), "cfg_103"},
            {new CfgRadioButton(&widget), "cfg_104"},
            {new CfgLineEdit(&widget), "cfg_105"}};
        for (const auto &[control, name] : controls)
            control->setObjectName(QLatin1String(name));
        if (!table.loadJson(json) || !binder.bind(&widget, &table).isEmpty())
            qFatal("the form does not bind");
        widget.show();
    }

    template <class Control> Control *find(int ref)
    {
        return widget.findChild<Control *>(QStringLiteral("cfg_%1").arg(ref));
    }
};
} // namespace

class TestFormState : public QObject
{
    Q_OBJECT

private slots:
    void followsEdits_data()
    {
        // flips: modifiedChanged then validChanged arguments
        columns<QList<int>, QVariantList, QList<int>, QList<int>, QVariantList>(
            "refs", "values", "modified", "invalid", "flips");

        row("edit", QList<int>{105}, QVariantList{"xy"}, QList<int>{105}, QList<int>{},
            QVariantList{true});
        row("edit taken back", QList<int>{105, 105}, QVariantList{"xy", "ab"}, QList<int>{},
            QList<int>{}, QVariantList{true, false});
        row("off the step", QList<int>{102}, QVariantList{12}, QList<int>{102}, QList<int>{102},
            QVariantList{true, false});
        row("radio choice", QList<int>{104}, QVariantList{1}, QList<int>{103, 104}, QList<int>{},
            QVariantList{true});
        row("two edits, one flip", QList<int>{105, 101}, QVariantList{"xy", 1},
            QList<int>{101, 105}, QList<int>{}, QVariantList{true});
    }

    void followsEdits()
    {
        QFETCH(QList<int>, refs);
        QFETCH(QVariantList, values);
        ParameterTable table;
        QVERIFY(table.loadJson(json));
        FormState state(&table);
        QVariantList flips;
        connect(&state, &FormState::modifiedChanged, this, [&](bool on) { flips.append(on); });
        connect(&state, &FormState::validChanged, this, [&](bool on) { flips.append(on); });
        for (int i = 0; i < refs.size(); ++i)
            table.setValue(refs[i], values[i]);
        QTEST(state.modifiedParameters(), "modified");
        QTEST(state.invalidParameters(), "invalid");
        QCOMPARE(state.modifiedParameters(), table.modifiedParameters());
        QCOMPARE(state.invalidParameters(), table.invalidParameters());
        QTEST(flips, "flips");

        // Saving makes everything stored; no parameter differs any more.
        state.save();
        QVERIFY(!state.isModified());
        QCOMPARE(state.isValid(), table.invalidParameters().isEmpty());
    }

    void formShowsEveryChange_data()
    {
        columns<int, int, QByteArray, QVariant>("action", "ref", "property", "shown");

        enum { ClickOtherChoice, HostWrites, Revert, Load, Restore };
        row("the other choice unchecks", int(ClickOtherChoice), 103, QByteArray("checked"),
            QVariant(false));
        row("the host writes", int(HostWrites), 105, QByteArray("text"), QVariant("zz"));
        row("revert", int(Revert), 102, QByteArray("value"), QVariant(10));
        row("load", int(Load), 105, QByteArray("text"), QVariant("qq"));
        row("restore one", int(Restore), 101, QByteArray("checked"), QVariant(false));
    }

    void formShowsEveryChange()
    {
        auto [action, ref, property] = fetch<int, int, QByteArray>("action", "ref", "property");
        Form form;
        switch (action) {
        case 0:
            QTest::mousePress(form.find<CfgRadioButton>(104), Qt::LeftButton);
            QTest::mouseRelease(form.find<CfgRadioButton>(104), Qt::LeftButton);
            QCOMPARE(form.table.value(103), QVariant(1));
            break;
        case 1:
            form.table.setValue(105, QStringLiteral("zz"));
            break;
        case 2:
            form.find<CfgSpinBox>(102)->setValue(20);
            form.table.revert();
            break;
        case 3: {
            QByteArray other = json;
            other.replace("\"ab\"", "\"qq\"");
            QVERIFY(form.table.loadJson(other));
            break;
        }
        case 4:
            form.find<CfgCheckBox>(101)->setChecked(true);
            QVERIFY(form.binder.state()->restore(101));
            break;
        }
        QWidget *control = form.binder.control(ref);
        QTEST(control->property(property.constData()), "shown");
        QCOMPARE(form.binder.state()->isModified(), !form.table.modifiedParameters().isEmpty());
    }

    void editorKeepsItsCursor()
    {
        // The control the user types in already shows its value: it is not loaded again.
        Form form;
        auto *edit = form.find<CfgLineEdit>(105);
        edit->setFocus();
        edit->setCursorPosition(1);
        QTest::keyClick(edit, Qt::Key_X);
        QCOMPARE(form.table.value(105).toString(), QStringLiteral("axb"));
        QCOMPARE(edit->cursorPosition(), 2);
    }

    void hostTableHook()
    {
        TestHost host;
        host.add(5, 0, 1);
        host.add(6, 0, 1);
        FormState state(&host, {6, 5});
        QSignalSpy flips(&state, &FormState::modifiedChanged);
        host.modified = {5, 6};
        state.tableChanged(5);
        state.tableChanged(7); // not followed
        QCOMPARE(state.modifiedParameters(), QList<int>{5});
        state.reload();
        QCOMPARE(state.modifiedParameters(), (QList<int>{6, 5}));
        QCOMPARE(flips.count(), 1);
    }

    void reportsWhatDidNotBind()
    {
        ParameterTable table;
        QVERIFY(table.loadJson(R"({"parameters": [{"ref": 7, "value": 0}]})"));
        QWidget form;
        (new CfgRadioButton(&form))->setObjectName(QStringLiteral("cfg_7"));
        (new CfgCheckBox(&form))->setObjectName(QStringLiteral("checkBox_3"));
        FormBinder binder;
        QStringList problems;
        binder.setReportUnnamed(true);
        for (const FormBinder::Problem &problem : binder.bind(&form, &table))
            problems.append(problem.text());
        QCOMPARE(problems,
                 (QStringList{
                     QStringLiteral("checkBox_3: a bound control without a cfg_ name"),
                     QStringLiteral("cfg_7: the record's type does not check a radio button")}));
    }
};

QTEST_MAIN(TestFormState)
#include "tst_formstate.moc"
