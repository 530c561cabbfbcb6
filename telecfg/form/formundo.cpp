// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/form/formundo.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/controls/boundcontrol.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QUndoCommand>
#include <QUndoStack>
#include <QVector>
#include <utility>

namespace {
// Every step shares one id: whether two may merge is decided by their run (Step::mergeWith).
constexpr int stepId = 0x7443;

// A control whose edits arrive keystroke by keystroke, merged while the user types.
bool typesText(const QWidget *control)
{
    return qobject_cast<const QLineEdit *>(control) ||
           qobject_cast<const QAbstractSpinBox *>(control);
}

// The text field of a control: a line edit's own, a spin box's inner one.
QLineEdit *textField(QObject *control)
{
    if (auto *edit = qobject_cast<QLineEdit *>(control))
        return edit;
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(control))
        return spin->findChild<QLineEdit *>();
    return nullptr;
}
} // namespace

struct FormUndo::Private
{
    class Step;
    struct Change
    {
        int ref = 0;
        QVariant before;
        QVariant after;
    };
    enum class Kind { Edit, Batch, Restore };

    FormUndo *const q;
    FormState *const state;
    QUndoStack stack;
    // The value of every parameter as last seen: the "before" of the next change.
    QHash<int, QVariant> known;
    int applying = 0;
    bool restoring = false;

    // The run the next change joins; a new step starts with a new run.
    quint64 run = 0;
    bool batchOpen = false;
    QPointer<QWidget> typing;
    int typingRef = 0;
    const QWidget *lastWriter = nullptr;
    quint64 lastSerial = 0;

    struct Attached
    {
        QPointer<QWidget> control;
        int ref = 0;
    };
    QHash<QObject *, Attached> attached;

    Private(FormUndo *q, FormState *state) : q(q), state(state) {}

    void takeAll()
    {
        known.clear();
        const QList<int> refs = state->parameters();
        for (int ref : refs)
            known.insert(ref, state->table()->value(ref));
    }

    // The next change starts a step of its own.
    void close()
    {
        batchOpen = false;
        typing = nullptr;
        lastWriter = nullptr;
    }

    // The run a change of `ref` joins, decided by who writes it (see the class description).
    quint64 runOf(int ref, Kind *kind)
    {
        QWidget *const writer = BoundControl::writing();
        if (!writer) {
            *kind = restoring ? Kind::Restore : Kind::Batch;
            typing = nullptr;
            lastWriter = nullptr;
            if (!batchOpen) {
                batchOpen = true;
                ++run;
                QMetaObject::invokeMethod(
                    q, [this] { batchOpen = false; }, Qt::QueuedConnection);
            }
            return run;
        }
        *kind = Kind::Edit;
        batchOpen = false;
        const quint64 serial = BoundControl::writeSerial();
        if (writer == lastWriter && serial == lastSerial)
            return run; // another member of the radio group this write chose
        lastWriter = writer;
        lastSerial = serial;
        if (writer == typing && ref == typingRef)
            return run;
        typing = typesText(writer) ? writer : nullptr;
        typingRef = ref;
        return ++run;
    }

    QString describe(int ref, Kind kind) const
    {
        const QWidget *control = state->table()->object(ref).control;
        QString name = control ? control->accessibleName() : QString();
        if (name.isEmpty())
            name = FormUndo::tr("parametr %1").arg(ref);
        // Before the line break what a history view shows, after it what follows "Cofnij".
        return kind == Kind::Restore
                   ? FormUndo::tr(
                         "Przywrócenie zapisanej wartości: %1\nprzywrócenie zapisanej wartości: %1")
                         .arg(name)
                   : FormUndo::tr("Zmiana: %1\nzmianę: %1").arg(name);
    }

    void changed(int ref);

    void write(int ref, const QVariant &value)
    {
        ++applying;
        state->table()->setValue(ref, value);
        --applying;
    }

    // Undo and redo over the history, on the standard keys.
    QList<QAction *> keyActions(QObject *parent) const
    {
        QAction *undo = stack.createUndoAction(parent, FormUndo::tr("Cofnij"));
        undo->setShortcuts(QKeySequence::Undo);
        QAction *redo = stack.createRedoAction(parent, FormUndo::tr("Ponów"));
        redo->setShortcuts(QKeySequence::Redo);
        return {undo, redo};
    }
};

// One step: the changes of one or more parameters, in the order they came.
class FormUndo::Private::Step : public QUndoCommand
{
public:
    Step(Private *undo, quint64 run, Kind kind, Change change)
        : run(run), owner(undo), kind(kind), first(std::move(change))
    {
        setText(owner->describe(first.ref, kind));
    }

    const quint64 run;

    int id() const override { return stepId; }

    bool mergeWith(const QUndoCommand *command) override
    {
        const auto *next = dynamic_cast<const Step *>(command);
        if (!next || next->run != run)
            return false;
        add(next->first);
        if (kind == Kind::Batch && !more.isEmpty())
            setText(FormUndo::tr("Zmiana wielu wartości\nzmianę wielu wartości"));
        setObsolete(unchanged());
        return true;
    }

    void undo() override
    {
        for (int i = more.size() - 1; i >= 0; --i)
            owner->write(more[i].ref, more[i].before);
        owner->write(first.ref, first.before);
        owner->close();
    }

    void redo() override
    {
        // Pushed after the change was made: the first redo has nothing to do.
        if (std::exchange(fresh, false))
            return;
        owner->write(first.ref, first.after);
        for (const Change &change : std::as_const(more))
            owner->write(change.ref, change.after);
        owner->close();
    }

private:
    void add(const Change &change)
    {
        if (change.ref == first.ref) {
            first.after = change.after;
            return;
        }
        for (Change &known : more) {
            if (known.ref == change.ref) {
                known.after = change.after;
                return;
            }
        }
        more.append(change);
    }

    bool unchanged() const
    {
        if (!ParameterTable::sameValue(first.before, first.after))
            return false;
        for (const Change &change : more)
            if (!ParameterTable::sameValue(change.before, change.after))
                return false;
        return true;
    }

    Private *const owner;
    const Kind kind;
    bool fresh = true;
    Change first;
    // The other parameters of the step (a radio group's members, a revert): none for most.
    QVector<Change> more;
};

void FormUndo::Private::changed(int ref)
{
    const QVariant now = state->table()->value(ref);
    QVariant &last = known[ref];
    // A stored value that changed (a save) leaves the value as it was: no step.
    if (ParameterTable::sameValue(last, now) && last.isValid() == now.isValid())
        return;
    QVariant before = std::exchange(last, now);
    if (applying)
        return;
    Kind kind = Kind::Edit;
    const quint64 stepRun = runOf(ref, &kind);
    stack.push(new Step(this, stepRun, kind, {ref, std::move(before), now}));
}

FormUndo::FormUndo(FormState *state, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, state))
{
    d->takeAll();
    connect(state, &FormState::parameterChanged, this, [this](int ref) { d->changed(ref); });
    connect(state, &FormState::reloaded, this, [this] {
        d->takeAll();
        d->stack.clear();
        d->close();
    });
    if (auto *app = qobject_cast<QApplication *>(QCoreApplication::instance())) {
        connect(app, &QApplication::focusChanged, this, [this](QWidget *old, QWidget *) {
            if (d->typing && old && (old == d->typing || d->typing->isAncestorOf(old)))
                d->typing = nullptr;
        });
    }
}

FormUndo::~FormUndo() = default;

FormState *FormUndo::state() const
{
    return d->state;
}

QUndoStack *FormUndo::stack() const
{
    return &d->stack;
}

bool FormUndo::restore(int ref)
{
    if (!d->state->parameterTable() || !d->state->table()->isModified(ref))
        return false;
    d->close();
    d->restoring = true;
    const bool restored = d->state->restore(ref);
    d->restoring = false;
    d->close();
    return restored;
}

void FormUndo::attach(FormBinder *binder)
{
    const QList<int> refs = binder->parameters();
    for (int ref : refs) {
        QWidget *control = binder->control(ref);
        if (!control)
            continue;
        QList<QObject *> targets{control};
        if (auto *area = qobject_cast<QAbstractScrollArea *>(control))
            targets.append(area->viewport()); // where a list's or table's menu event arrives
        for (QObject *target : targets) {
            if (!d->attached.contains(target)) {
                target->installEventFilter(this);
                connect(target, &QObject::destroyed, this,
                        [this](QObject *gone) { d->attached.remove(gone); });
            }
            d->attached.insert(target, {control, ref});
        }
    }
}

QMenu *FormUndo::createContextMenu(QWidget *control, int ref)
{
    QLineEdit *field = textField(control);
    QMenu *menu = field ? field->createStandardContextMenu() : new QMenu;
    menu->setParent(nullptr, menu->windowFlags());
    if (!menu->isEmpty())
        menu->addSeparator();
    QAction *restoreAction = menu->addAction(tr("Przywróć zapisaną wartość"));
    restoreAction->setEnabled(d->state->parameterTable() && d->state->table()->isModified(ref));
    connect(restoreAction, &QAction::triggered, this, [this, ref] { restore(ref); });
    menu->addActions(d->keyActions(menu));
    return menu;
}

void FormUndo::installShortcuts(QWidget *form)
{
    const QList<QAction *> actions = d->keyActions(form);
    for (QAction *action : actions) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        form->addAction(action);
    }
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        if (typesText(widget))
            widget->installEventFilter(this);
}

bool FormUndo::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ContextMenu) {
        const Private::Attached target = d->attached.value(watched);
        if (target.control) {
            const std::unique_ptr<QMenu> menu(createContextMenu(target.control, target.ref));
            menu->exec(static_cast<QContextMenuEvent *>(event)->globalPos());
            return true;
        }
    } else if (event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        const bool undoKey = key->matches(QKeySequence::Undo);
        if (undoKey || key->matches(QKeySequence::Redo)) {
            // A text field with typing of its own to take back keeps the key; otherwise the
            // override is left unclaimed and the form's action takes it.
            const QLineEdit *field = textField(watched);
            if (field && !(undoKey ? field->isUndoAvailable() : field->isRedoAvailable()))
                return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
