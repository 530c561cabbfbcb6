// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/formundo.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMetaProperty>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QtTest>

namespace {
const QByteArray tableJson = R"({"version": 12, "parameters": [
    {"ref": 101, "type": 22, "value": 1},
    {"ref": 102, "type": 1, "minimum": 10, "maximum": 1500, "step": 5, "value": 400,
     "stored": 380},
    {"ref": 103, "type": 17, "value": "Pojazd"},
    {"ref": 104, "options": [["125", "125"], ["250", "250"], ["500", "500"]], "value": "250"},
    {"ref": 105, "type": 4, "minimum": 0, "value": 0, "group": 105},
    {"ref": 106, "type": 4, "minimum": 1, "value": 0, "group": 105}]})";

// Every control kind on one shown, active form, bound and followed by a history.
struct Form
{
    ParameterTable table;
    QWidget widget;
    FormBinder binder;
    std::unique_ptr<FormUndo> undo;

    Form()
    {
        if (!table.loadJson(tableJson))
            qFatal("test table does not load");
        auto *layout = new QVBoxLayout(&widget);
        const QList<QWidget *> controls{new CfgCheckBox, new CfgSpinBox,     new CfgLineEdit,
                                        new CfgComboBox, new CfgRadioButton, new CfgRadioButton};
        for (int i = 0; i < controls.size(); ++i) {
            controls[i]->setObjectName(QStringLiteral("cfg_%1").arg(101 + i));
            layout->addWidget(controls[i]);
        }
        binder.bind(&widget, &table);
        undo = std::make_unique<FormUndo>(binder.state());
        undo->attach(&binder);
        undo->installShortcuts(&widget);
        widget.show();
        QApplication::setActiveWindow(&widget);
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
} // namespace

class TestFormUndo : public TestCase
{
    Q_OBJECT

private slots:
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
        Form form;
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
        Form form;
        form.run("click:101 type:103:a");
        QCOMPARE(form.undo->stack()->count(), 2);
        form.table.save(); // the stored values change, the values do not: no step
        QCOMPARE(form.undo->stack()->count(), 2);
        QVERIFY(form.table.loadJson(tableJson));
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
        QFETCH(int, ref);
        QFETCH(bool, ownEntries);
        QFETCH(bool, modified);
        Form form;
        form.run("click:101");
        QWidget *control = form.control(ref);
        QStringList entries;
        QAction *restore = nullptr;
        QTimer::singleShot(0, [&] {
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
};

QTEST_MAIN(TestFormUndo)
#include "tst_formundo.moc"
