// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/dialogs/gui.h"
#include "telecfg/form/changereview.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/formundo.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"
#include "tests/support/testhost.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMetaProperty>
#include <QTimer>
#include <QTreeView>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QtTest>

namespace {
const QByteArray binderJson = R"({"version": 12, "parameters": [
    {"ref": 101, "type": 22, "value": 1},
    {"ref": 102, "minimum": 10, "maximum": 1500, "value": 400, "stored": 380, "hardware": [2]},
    {"ref": 103, "value": "x"}]})";

// A host's own control built on a bound one.
class HostSpinBox : public CfgSpinBox
{
    Q_OBJECT

public:
    using CfgSpinBox::CfgSpinBox;
};

// A designed form: a host's own spin box with its buddy label and unit, a check box, and
// names that do not bind.
struct Designed
{
    QWidget widget;
    QLabel *label = new QLabel(QStringLiteral("Pojemność"), &widget);
    CfgSpinBox *spin = new HostSpinBox(&widget);
    QLabel *unit = new QLabel(QStringLiteral("l"), &widget);
    CfgCheckBox *box = new CfgCheckBox(&widget);

    Designed()
    {
        spin->setObjectName(QStringLiteral("cfg_102"));
        label->setBuddy(spin);
        unit->setObjectName(QStringLiteral("cfg_102_unit"));
        box->setObjectName(QStringLiteral("cfg_101"));
        for (const char *name : {"cfg_999", "cfg_x1", "cfg_"})
            (new CfgLineEdit(&widget))->setObjectName(QLatin1String(name));
        (new QLineEdit(&widget))->setObjectName(QStringLiteral("cfg_103"));
        widget.show();
    }
};

const QByteArray stateJson = R"({"version": 1, "parameters": [
    {"ref": 101, "type": 22, "value": 0},
    {"ref": 102, "minimum": 0, "maximum": 100, "step": 5, "value": 10},
    {"ref": 103, "type": 4, "minimum": 0, "value": 0, "group": 9},
    {"ref": 104, "type": 4, "minimum": 1, "value": 0, "group": 9},
    {"ref": 105, "type": 16, "value": "ab"}]})";

const QByteArray undoJson = R"({"version": 12, "parameters": [
    {"ref": 101, "type": 22, "value": 1},
    {"ref": 102, "type": 1, "minimum": 10, "maximum": 1500, "step": 5, "value": 400,
     "stored": 380},
    {"ref": 103, "type": 17, "value": "Pojazd"},
    {"ref": 104, "options": [["125", "125"], ["250", "250"], ["500", "500"]], "value": "250"},
    {"ref": 105, "type": 4, "minimum": 0, "value": 0, "group": 105},
    {"ref": 106, "type": 4, "minimum": 1, "value": 0, "group": 105}]})";

// Controls named cfg_101, cfg_102, ... in a layout, bound to the table `json` loads into and
// followed by an undo history, on a shown, active form.
struct Form
{
    ParameterTable table;
    QWidget widget;
    FormBinder binder;
    std::unique_ptr<FormUndo> undo;

    Form(const QByteArray &json, const QList<QWidget *> &controls)
    {
        auto *layout = new QVBoxLayout(&widget);
        for (int i = 0; i < controls.size(); ++i) {
            controls[i]->setObjectName(QStringLiteral("cfg_%1").arg(101 + i));
            layout->addWidget(controls[i]);
        }
        if (!table.loadJson(json) || !binder.bind(&widget, &table).isEmpty())
            qFatal("the form does not bind");
        undo = std::make_unique<FormUndo>(binder.state());
        undo->attach(&binder);
        undo->installShortcuts(&widget);
        widget.show();
        QApplication::setActiveWindow(&widget);
    }

    template <class Control> Control *find(int ref) const
    {
        return qobject_cast<Control *>(binder.control(ref));
    }
    QWidget *control(int ref) const { return binder.control(ref); }

    // What the host and the user see: every value in the table, and every control's shown
    // value and style sheet.
    QStringList snapshot() const
    {
        QStringList seen;
        for (int ref : binder.parameters()) {
            QWidget *shown = control(ref);
            seen << QStringLiteral("%1=%2 shows %3 %4")
                        .arg(ref)
                        .arg(const_cast<ParameterTable &>(table).value(ref).toString())
                        .arg(shown->metaObject()->userProperty().read(shown).toString())
                        .arg(shown->styleSheet());
        }
        return seen;
    }

    // Runs a script of user and host operations, each one event-loop turn of its own:
    // click:REF, type:REF:TEXT, key:REF:up|back|undo|redo, pick:REF:INDEX, focus:REF,
    // host:REF=VALUE,REF=VALUE (in one go), revert, restore:REF.
    void run(const QString &script)
    {
        for (const QString &token : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList part = token.split(QLatin1Char(':'));
            const QString op = part[0];
            QWidget *target = part.size() > 1 ? control(part[1].toInt()) : nullptr;
            if (target && op != QLatin1String("click") && op != QLatin1String("pick"))
                target->setFocus();
            if (op == QLatin1String("click")) {
                static_cast<QAbstractButton *>(target)->click();
            } else if (op == QLatin1String("type")) {
                QTest::keyClicks(target, part[2]);
            } else if (op == QLatin1String("key")) {
                const QString key = part[2];
                if (key == QLatin1String("undo"))
                    QTest::keySequence(target, QKeySequence::Undo);
                else if (key == QLatin1String("redo"))
                    QTest::keySequence(target, QKeySequence::Redo);
                else
                    QTest::keyClick(target,
                                    key == QLatin1String("up") ? Qt::Key_Up : Qt::Key_Backspace);
            } else if (op == QLatin1String("pick")) {
                static_cast<QComboBox *>(target)->setCurrentIndex(part[2].toInt());
            } else if (op == QLatin1String("host")) {
                for (const QString &write : token.mid(5).split(QLatin1Char(','))) {
                    const QStringList pair = write.split(QLatin1Char('='));
                    table.setValue(pair[0].toInt(), pair[1]);
                }
            } else if (op == QLatin1String("revert")) {
                table.revert();
            } else if (op == QLatin1String("restore")) {
                undo->restore(part[1].toInt());
            } else if (op != QLatin1String("focus")) {
                qFatal("unknown operation %s", qPrintable(token));
            }
            QCoreApplication::processEvents();
        }
    }
};

// Every control kind.
struct UndoForm : Form
{
    UndoForm()
        : Form(undoJson, {new CfgCheckBox, new CfgSpinBox, new CfgLineEdit, new CfgComboBox,
                          new CfgRadioButton, new CfgRadioButton})
    {
    }
};
const char fourChanges[] = R"({"parameters": [
    {"ref": 10, "label": "Pojemność", "value": 400, "stored": 380},
    {"ref": 11, "value": 1},
    {"ref": 12, "page": "Ukryta", "label": "Adres", "value": "10.0.0.2", "stored": "10.0.0.1"},
    {"ref": 13, "type": 22, "label": "Alarm", "value": 1, "stored": 0},
    {"ref": 14, "type": 13, "capacity": 3, "label": "Numery", "value": ["1"], "stored": []}]})";

QString numbers(int from, int to, const char *separator)
{
    QStringList list;
    for (int n = from; n <= to; ++n)
        list.append(QString::number(n));
    return list.join(QLatin1String(separator));
}

} // namespace

class TestForm : public TestCase
{
    Q_OBJECT

private slots:
    void bindsByName()
    {
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(binderJson));
        Designed form;
        FormBinder binder;
        QStringList problems;
        for (const FormBinder::Problem &problem : binder.bind(&form.widget, &parameters))
            problems.append(problem.text());
        QCOMPARE(problems,
                 (QStringList{QStringLiteral("cfg_999: no such parameter"),
                              QStringLiteral("cfg_x1: no parameter number after \"cfg_\""),
                              QStringLiteral("cfg_: no parameter number after \"cfg_\""),
                              QStringLiteral("cfg_103: not a bound control")}));
        QCOMPARE(binder.parameters(), (QList<int>{102, 101}));
        QCOMPARE(binder.control(102), form.spin);
        QCOMPARE(form.spin->value(), 400);
        QVERIFY(form.box->isChecked());
        QCOMPARE(parameters.object(102).label, form.label);

        // Another table's existence check decides instead of the ready table's.
        QCOMPARE(binder.bind(&form.widget, &parameters, [](int ref) { return ref != 101; }).size(),
                 4);
        QCOMPARE(binder.parameters(), (QList<int>{102, 999}));
    }

    void refreshAndRebind()
    {
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(binderJson));
        Designed form;
        FormBinder binder;
        binder.bind(&form.widget, &parameters);
        binder.refresh(1);
        QVERIFY(form.spin->isHidden());
        QVERIFY(form.label->isHidden()); // the buddy label and the cfg_102_ widget go with it
        QVERIFY(form.unit->isHidden());
        binder.refresh(2);
        QVERIFY(!form.spin->isHidden() && !form.label->isHidden() && !form.unit->isHidden());
        binder.refresh(0); // the last id stays
        QVERIFY(!form.spin->isHidden());
        QCOMPARE(binder.explainHidden(102), QStringLiteral("parameter 102 is shown"));

        // A revert reaches the controls by itself.
        parameters.revert();
        QCOMPARE(form.spin->value(), 380);

        // Binding to another table moves every control over.
        ParameterTable other;
        QVERIFY(other.loadJson(binderJson));
        binder.bind(&form.widget, &other);
        form.spin->setValue(500);
        QCOMPARE(other.value(102), QVariant(500));
        QCOMPARE(parameters.value(102), QVariant(380));
    }

    void explainsHidden_data()
    {
        columns<QByteArray, int, int, QString>("record", "hardwareId", "reason", "text");

        row("shown", QByteArray(R"("minVersion": 12)"), 1, int(HiddenReason::Shown),
            "parameter 5 is shown");
        row("no version range", QByteArray(R"("minVersion": {"3": 10}, "versionKey": 4)"), 1,
            int(HiddenReason::NoVersionRange),
            "parameter 5 is hidden: the record has no version range (no lowest version under "
            "version key 4 nor key 0), so it is shown from configuration version 99 on; the "
            "configuration version is 12");
        row("below", QByteArray(R"("minVersion": 13)"), 1, int(HiddenReason::BelowVersionRange),
            "parameter 5 is hidden: configuration version 12 is below its lowest version 13");
        row("above", QByteArray(R"("maxVersion": 11)"), 1, int(HiddenReason::AboveVersionRange),
            "parameter 5 is hidden: configuration version 12 is above its highest version 11");
        row("hardware", QByteArray(R"("hardware": [2, 3])"), 1,
            int(HiddenReason::HardwareNotListed),
            "parameter 5 is hidden: hardware id 1 is not among its hardware ids 2, 3");
        row("hardware listed", QByteArray(R"("hardware": [2, 3])"), 3, int(HiddenReason::Shown),
            "parameter 5 is shown");
        row("licence", QByteArray(R"("licence": 2)"), 1, int(HiddenReason::ClosedByLicence),
            "parameter 5 is hidden: its licence gate 2 is above the licence level 1");
        row("on request", QByteArray(R"("hidden": true)"), 1, int(HiddenReason::HiddenOnRequest),
            "parameter 5 is hidden: hidden on request (setHidden(true))");
    }

    void explainsHidden()
    {
        auto [record, hardwareId, reason, text] =
            fetch<QByteArray, int, int, QString>("record", "hardwareId", "reason", "text");
        setGUILicenseLevel(1);
        ParameterTable parameters;
        QVERIFY(parameters.loadJson(R"({"version": 12, "parameters": [{"ref": 5, "value": 1, )" +
                                    record + "}]}"));
        if (record.contains("hidden"))
            parameters.object(5).hidden = true;
        if (record.contains("versionKey"))
            parameters.object(5).minVersions.remove(0); // the table's "from version 0" default
        QWidget form;
        auto *box = new CfgCheckBox(&form);
        box->setObjectName(QStringLiteral("cfg_5"));
        form.show();
        FormBinder binder;
        binder.bind(&form, &parameters);
        binder.refresh(hardwareId);
        QCOMPARE(int(hiddenReason(parameters, 5, hardwareId)), reason);
        QCOMPARE(binder.explainHidden(5), text); // 0: the id of the last refresh
        // The control and the diagnostic decide alike.
        QCOMPARE(box->isHidden(), reason != int(HiddenReason::Shown));
        setGUILicenseLevel(0);
    }

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
        auto [refs, values] = fetch<QList<int>, QVariantList>("refs", "values");
        ParameterTable table;
        QVERIFY(table.loadJson(stateJson));
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
        Form form(stateJson, {new CfgCheckBox, new CfgSpinBox, new CfgRadioButton,
                              new CfgRadioButton, new CfgLineEdit});
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
            QByteArray other = stateJson;
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
        Form form(stateJson, {new CfgCheckBox, new CfgSpinBox, new CfgRadioButton,
                              new CfgRadioButton, new CfgLineEdit});
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

    void steps_data()
    {
        columns<QString, QString, int>("before", "edit", "steps");
        row("check box click", "", "click:101", 1);
        row("two clicks are two steps", "", "click:101 click:101", 2);
        row("combo box choice", "", "pick:104:2", 1);
        row("typing merges", "", "type:103:ab type:103:c", 1);
        row("spin box steps merge", "", "key:102:up key:102:up", 1);
        row("radio choice and its group", "", "click:106", 1);
        row("focus lost ends typing", "", "type:103:a focus:102 type:103:b", 2);
        row("another parameter ends typing", "", "type:103:a click:101 type:103:b", 3);
        row("edited back leaves no step", "", "type:103:a key:103:back", 0);
        row("host writes in one go", "", "host:103=x,104=500", 1);
        row("revert is one step", "click:101 type:103:a pick:104:0", "revert", 1);
        row("restore is a step", "", "restore:102", 1);
        row("restore of a stored value", "", "restore:103", 0);
        row("undo key from a check box", "click:101 focus:101", "key:101:undo", -1);
        row("undo key from a fresh line edit", "click:101", "key:103:undo", -1);
        row("redo key from a spin box", "click:101 key:101:undo", "key:102:redo", 1);
        row("line edit undoes its own typing first", "click:101", "type:103:ab key:103:undo", 0);
    }

    // An edit, then every step it made taken back and made again: the table and the form are
    // as before, then as after. A negative count takes back steps made before.
    void steps()
    {
        auto [before, edit, steps] = fetch<QString, QString, int>("before", "edit", "steps");
        UndoForm form;
        QVERIFY(QTest::qWaitForWindowActive(&form.widget));
        QUndoStack *stack = form.undo->stack();
        form.run(before);
        const int start = stack->index();
        const QStringList initial = form.snapshot();
        form.run(edit);
        const QStringList edited = form.snapshot();
        QCOMPARE(stack->index() - start, steps);
        QCOMPARE(stack->count() - stack->index(), qMax(0, -steps));
        for (int i = 0; i < steps; ++i)
            stack->undo();
        for (int i = 0; i > steps; --i)
            stack->redo();
        QCOMPARE(form.snapshot(), initial);
        for (int i = 0; i < steps; ++i)
            stack->redo();
        for (int i = 0; i > steps; --i)
            stack->undo();
        QCOMPARE(form.snapshot(), edited);
    }

    void reloadClearsSaveKeeps()
    {
        UndoForm form;
        form.run("click:101 type:103:a");
        QCOMPARE(form.undo->stack()->count(), 2);
        form.table.save(); // the stored values change, the values do not: no step
        QCOMPARE(form.undo->stack()->count(), 2);
        QVERIFY(form.table.loadJson(undoJson));
        QCOMPARE(form.undo->stack()->count(), 0);
        form.run("click:101"); // the history starts from the loaded values
        form.undo->stack()->undo();
        QCOMPARE(form.table.value(101), QVariant(1));
    }

    void contextMenu_data()
    {
        columns<int, bool, bool>("ref", "ownEntries", "modified");
        row("line edit", 103, true, false);
        row("spin box, modified", 102, true, true);
        row("check box, modified", 101, false, true);
        row("combo box", 104, false, false);
        row("radio button", 106, false, false);
    }

    // The menu a right click shows: the control's own entries, then restoring (enabled while
    // modified, and restoring when chosen), undo and redo.
    void contextMenu()
    {
        auto [ref, ownEntries, modified] = fetch<int, bool, bool>("ref", "ownEntries", "modified");
        UndoForm form;
        form.run("click:101");
        QWidget *control = form.control(ref);
        QStringList entries;
        QAction *restore = nullptr;
        QTimer::singleShot(0, [&, modified = modified] {
            QMenu *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (QAction *action : menu->actions()) {
                entries << action->text();
                if (action->text() == QStringLiteral("Przywróć zapisaną wartość"))
                    restore = action;
            }
            QCOMPARE(restore->isEnabled(), modified);
            if (modified)
                restore->trigger();
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2),
                                control->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(control, &event);
        QVERIFY(restore);
        const QStringList tail = entries.mid(entries.size() - 3);
        QCOMPARE(tail, (QStringList{QStringLiteral("Przywróć zapisaną wartość"),
                                    QStringLiteral("Cofnij zmianę: parametr 101"),
                                    QStringLiteral("Ponów")}));
        QCOMPARE(entries.size() > 3, ownEntries);
        QCOMPARE(form.table.isModified(ref), false);
        QCOMPARE(form.undo->stack()->count(), modified ? 2 : 1);
    }

    // One changed parameter 10 of each kind, as the review's row shows it.
    void valueTexts_data()
    {
        // parameter: the record's keys after "ref"
        // elements: the current value's, in the tool tip
        columns<QString, QString, QString, QString, QString>("parameter", "name", "stored",
                                                             "current", "elements");

        row("radio: label and text", R"("control": "radiobutton", "type": 4, "minimum": 2,
            "label": "Tryb", "text": "Aktywny", "value": 2, "stored": 1)",
            "Tryb: Aktywny", "niezaznaczone", "zaznaczone", "");
        // The rest have no label: the review names them by number.
        const auto unnamed = [](const char *tag, const QString &parameter, const char *stored,
                                const char *current, const QString &elements) {
            row(tag, parameter, "Parametr 10", stored, current, elements);
        };
        unnamed("int flag", R"("type": 22, "value": 1, "stored": 0)", "niezaznaczone", "zaznaczone",
                "");
        unnamed("options", R"("options": [["Wył.", "0"], ["Co minutę", "60"]], "value": "60",
                "stored": "0")",
                "Wył.", "Co minutę", "");
        unnamed("decimal", R"("value": 12.5, "stored": 12)", "12", "12.5", "");
        unnamed("list: added and removed",
                R"("type": 8, "capacity": 9, "value": [1, 3, 4, 5], "stored": [1, 2, 3])",
                "3 elementy", "4 elementy: 2 dodane, 1 usunięty", "1\n3\n4\n5");
        unnamed("list: from empty", R"("type": 8, "capacity": 9, "value": [7], "stored": [])",
                "0 elementów", "1 element: 1 dodany", "7");
        unnamed("list: names", R"("type": 24, "capacity": 3, "names": {"7": "Jan Kowalski"},
                "value": [7, 8], "stored": [8])",
                "1 element", "2 elementy: 1 dodany", "Jan Kowalski\n8");
        unnamed("list: order only",
                R"("type": 13, "capacity": 3, "value": ["b", "a"], "stored": ["a", "b"])",
                "2 elementy", "2 elementy: zmieniona kolejność", "b\na");
        unnamed("table: row added and changed", R"("columns": [1, 1], "capacity": 4,
                "value": [[1, "x"], [2, "b"], [3, "c"]], "stored": [[1, "a"], [2, "b"]])",
                "2 elementy", "3 elementy: 1 dodany, 1 zmieniony", "1, x\n2, b\n3, c");
        unnamed("list: plural forms past the teens",
                QStringLiteral(R"("type": 8, "capacity": 30, "value": [%1], "stored": [%2])")
                    .arg(numbers(1, 22, ","), numbers(1, 12, ",")),
                "12 elementów", "22 elementy: 10 dodanych", numbers(1, 22, "\n"));
        unnamed("networks", R"("type": 29, "capacity": 3, "value": [266243], "stored": [])",
                "0 elementów", "1 element: 1 dodany", networkText(266243));
    }

    void valueTexts()
    {
        QFETCH(QString, parameter);
        ParameterTable table;
        QVERIFY(table.loadJson(R"({"parameters": [{"ref": 10, )" + parameter.toUtf8() + "}]}"));

        ChangeReview review(&table);
        const QAbstractItemModel *rows = review.findChild<QTreeView *>()->model();
        QCOMPARE(rows->rowCount(), 1);
        QTEST(rows->index(0, 0).data().toString(), "name");
        QTEST(rows->index(0, 1).data().toString(), "stored");
        QTEST(rows->index(0, 2).data().toString(), "current");
        QTEST(rows->index(0, 2).data(Qt::ToolTipRole).toString(), "elements");
    }

    // The user leaves changes out with Space and confirms with Enter (or cancels with Escape):
    // exactly the left-out ones go back to their stored values, the rest are chosen.
    void leaveOut_data()
    {
        // uncheck: rows toggled with Space
        columns<QList<int>, int, QList<int>, QList<int>, QString>("uncheck", "key", "chosen",
                                                                  "reverted", "summary");

        row("all kept", QList<int>{}, int(Qt::Key_Return), QList<int>{10, 12, 13, 14}, QList<int>{},
            "Zmienione parametry: 4, wybrane: 4");
        row("two left out", QList<int>{1, 3}, int(Qt::Key_Enter), QList<int>{10, 13},
            QList<int>{12, 14}, "Zmienione parametry: 4, wybrane: 2");
        row("cancelled", QList<int>{0}, int(Qt::Key_Escape), QList<int>{}, QList<int>{},
            "Zmienione parametry: 4, wybrane: 3");
    }

    void leaveOut()
    {
        auto [uncheck, key, reverted] =
            fetch<QList<int>, int, QList<int>>("uncheck", "key", "reverted");
        ParameterTable table;
        QVERIFY(table.loadJson(fourChanges));
        const QList<int> refs = table.parameters();
        QVariantList before;
        for (int ref : refs)
            before.append(table.value(ref));

        ChangeReview review(&table);
        auto *view = review.findChild<QTreeView *>();
        QString summary;
        ModalCatcher catcher([&, uncheck = uncheck, key = key](QWidget *modal) {
            for (int row : uncheck) {
                view->setCurrentIndex(view->model()->index(row, 2)); // any column of the row
                QTest::keyClick(view, Qt::Key_Space);
            }
            summary = modal->findChild<QLabel *>(QStringLiteral("summary"))->text();
            QTest::keyClick(view, Qt::Key(key));
        });
        const int result = review.exec();
        QCOMPARE(result == QDialog::Accepted, key != Qt::Key_Escape);
        QTEST(summary, "summary");
        if (result == QDialog::Accepted)
            QTEST(review.chosen(), "chosen");
        for (int i = 0; i < refs.size(); ++i) {
            const QVariant expected =
                reverted.contains(refs[i]) ? table.storedValue(refs[i]) : before[i];
            QVERIFY2(ParameterTable::sameValue(table.value(refs[i]), expected),
                     qPrintable(QString::number(refs[i])));
        }
    }

    // Over a host's own table the dialog names the left-out changes and writes nothing.
    void hostTable()
    {
        TestHost host;
        host.add(20, 0, 5);
        host.add(21, 0, QStringLiteral("b"));
        ChangeReview review(&host, {20, 21},
                            [](int ref) { return ref == 20 ? QVariant(4) : QVariant(); });
        auto *view = review.findChild<QTreeView *>();
        QCOMPARE(view->model()->index(0, 1).data().toString(), QStringLiteral("4"));
        QTest::keyClick(view, Qt::Key_Space);
        review.accept();
        QCOMPARE(review.leftOut(), QList<int>{20});
        QCOMPARE(review.chosen(), QList<int>{21});
        QVERIFY(host.writes.isEmpty());
    }

    // Closing asks only while something really differs; the answer decides whether the
    // window closes and what becomes of the changes.
    void question_data()
    {
        // takenBack: the edit was set back to the stored value
        // saves: what the host's save returns
        columns<bool, int, bool, bool, bool, int>("takenBack", "answer", "saves", "asked", "closed",
                                                  "valueAfter");

        row("edit taken back", true, 0, true, false, true, 380);
        row("save succeeds", false, int(QMessageBox::Save), true, true, true, 400);
        row("save fails", false, int(QMessageBox::Save), false, true, false, 400);
        row("discard", false, int(QMessageBox::Discard), true, true, true, 380);
        row("cancel", false, int(QMessageBox::Cancel), true, true, false, 400);
    }

    void question()
    {
        auto [takenBack, answer, saves] = fetch<bool, int, bool>("takenBack", "answer", "saves");
        ParameterTable table;
        QVERIFY(table.loadJson(R"({"parameters": [{"ref": 10, "label": "Inna", "value": 380}]})"));
        QWidget window;
        // The label the bound control registered names the parameter before the presentation.
        QLabel label(QStringLiteral("&Pojemność:"), &window);
        table.object(10).label = &label;
        table.setValue(10, 400);
        if (takenBack)
            table.setValue(10, 380);
        window.show();
        int saveCalls = 0;
        ChangeReview::askBeforeClosing(&window, &table, [&, saves = saves] {
            ++saveCalls;
            return saves;
        });
        QString details;
        ModalCatcher catcher([&, answer = answer](QWidget *modal) {
            auto *box = qobject_cast<QMessageBox *>(modal);
            details = box->informativeText();
            if (QAbstractButton *button = box->button(QMessageBox::StandardButton(answer)))
                button->click();
            else
                box->reject();
        });
        QTEST(window.close(), "closed");
        QTEST(!catcher.seen.isEmpty(), "asked");
        if (!catcher.seen.isEmpty()) {
            QCOMPARE(catcher.seen.first().title, QStringLiteral("Niezapisane zmiany"));
            QCOMPARE(details, QStringLiteral("Pojemność: 380 → 400"));
        }
        QCOMPARE(saveCalls, answer == QMessageBox::Save ? 1 : 0);
        QTEST(table.value(10).toInt(), "valueAfter");
    }
};

QTEST_MAIN(TestForm)
#include "tst_form.moc"
