// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/controls/statecue_p.h"
#include "telecfg/controls/visibility.h"
#include "telecfg/telecfg_export.h"

#include <QList>
#include <QPointer>
#include <QWidget>

struct QMetaObject;
class QString;

// Internal to the library, never installed.
//
// The bound control protocol. The controls cannot share a base class (each derives from a
// different toolkit widget and must not add virtual operations), so the protocol is two
// types: BoundKind, the operations of one kind of control reached through a plain QWidget,
// and BoundControl, the state and the shared steps each control holds in its private part.

// The protocol's operations of one kind of control, each calling the control's own
// (non-virtual) operation. A control's source file defines one with BoundKind::of, which
// registers it; anything above the controls (the form binder, the Designer plugin, tests)
// finds the kind of a widget by its meta-object and never names the classes.
struct TELECFG_EXPORT BoundKind
{
    template <class Control> static BoundKind of(const char *header);

    const QMetaObject *metaObject;
    const char *header; // the include path hosts use, "telecfg/controls/cfgspinbox.h"
    QWidget *(*create)(QWidget *parent);
    void (*setReference)(QWidget *control, MainConfigIFace *iface, int ref, QWidget *label,
                         QList<QWidget *> relatedWidgets);
    void (*updateControl)(QWidget *control, int hardwareId);
    void (*setEnabled)(QWidget *control, bool enable);
    void (*updateEnableState)(QWidget *control, bool state);
    void (*setHidden)(QWidget *control, bool hidden);
    void (*setError)(QWidget *control, bool error);
    bool (*isError)(QWidget *control);

    // The kind of a widget's class or of the nearest base class that is a bound control;
    // null for any other widget.
    static const BoundKind *find(const QWidget *widget);
    static const BoundKind *find(const QMetaObject *metaObject);
    // Every kind registered so far, in the order of registration.
    static QList<const BoundKind *> all();

private:
    static void add(const BoundKind *kind);
    friend class BoundKindRegistration;
};

// Registers a kind for as long as the library is loaded. A control's source file holds one
// beside its constructor, so whenever the control is linked in, so is its registration.
class BoundKindRegistration
{
public:
    explicit BoundKindRegistration(const BoundKind &kind) : kind(kind) { BoundKind::add(&kind); }
    const BoundKind &kind;
};

template <class Control> BoundKind BoundKind::of(const char *header)
{
    return BoundKind{
        &Control::staticMetaObject,
        header,
        [](QWidget *parent) -> QWidget * { return new Control(parent); },
        [](QWidget *control, MainConfigIFace *iface, int ref, QWidget *label,
           QList<QWidget *> related) {
            static_cast<Control *>(control)->setReference(iface, ref, label, related);
        },
        [](QWidget *control, int id) { static_cast<Control *>(control)->updateControl(id); },
        [](QWidget *control, bool on) { static_cast<Control *>(control)->setEnabled(on); },
        [](QWidget *control, bool on) { static_cast<Control *>(control)->updateEnableState(on); },
        [](QWidget *control, bool on) { static_cast<Control *>(control)->setHidden(on); },
        [](QWidget *control, bool on) { static_cast<Control *>(control)->setError(on); },
        [](QWidget *control) { return static_cast<Control *>(control)->isError(); },
    };
}

// The state colour of the controls painted by background: red, yellow (modified), white.
class BackgroundSheets
{
public:
    enum Colour { Red, Yellow, White };
    // The three sheets "<widgetClass>{background: red;}" and so on, and their dark set
    // (setStateColours()).
    explicit BackgroundSheets(const char *widgetClass);
    const QString &operator[](Colour colour) const;
    // The background a sheet paints under the text.
    static QColor background(Colour colour);

private:
    QString sheets[2][3];
};

// The binding of one control and the steps every control takes alike. A control holds one
// in its private part and adds only its own loading, painting and editing.
// A bound control that carries this property (true) edits one item of a view: it is shown
// whatever the visibility rules say, as the view alone decides where it stands.
inline constexpr char itemEditorProperty[] = "telecfg_item_editor";

class BoundControl
{
public:
    BoundControl(QWidget *self, const BoundKind &kind) : self(self), kind(kind) {}

    MainConfigIFace *iface = nullptr;
    int reference = 0;
    bool enableState = true;
    // Guarded like the toolkit's own widget mappers guard their widgets: the host may delete
    // a related widget (or pass none) and the control must go on without it.
    QList<QPointer<QWidget>> relatedWidgets;
    int hardwareId = 0;
    bool error = false;

    // The bound record, fetched anew at every call (the host may rebuild it).
    MainConfigObject &record() const { return iface->object(reference); }

    // What binding does with a null label: the value controls record it, the collection
    // editors keep the label recorded before.
    enum class NullLabel { Record, Keep };
    // The frame of setReference: stores the binding and clears `error`; then, unless the table
    // is null, sets the record's tool tip, runs `load` (the control's own loading of the value)
    // and writes the control and `label` into the record. Returns false for a null table: the
    // control then stays unbound.
    template <class Load>
    bool bind(MainConfigIFace *table, int ref, QWidget *label, const QList<QWidget *> &related,
              Load load, NullLabel nullLabel = NullLabel::Record)
    {
        if (!bindOnly(table, ref, related))
            return false;
        self->setToolTip(record().toolTip);
        load();
        registerIn(label, nullLabel);
        statecue::nameAfterLabel(self, label);
        return true;
    }

    // While one lives, the control is loading a value: the write path writes nothing, so the
    // control's own change slot does not echo the value back to the host.
    class Loading
    {
    public:
        explicit Loading(BoundControl &bound) : bound(bound) { ++bound.loadingDepth; }
        ~Loading() { --bound.loadingDepth; }
        Loading(const Loading &) = delete;
        Loading &operator=(const Loading &) = delete;

    private:
        BoundControl &bound;
    };
    bool loading() const { return loadingDepth != 0; }

    // The one way a control writes to the host: nothing while unbound or loading; otherwise
    // setValue and, unless told not to, the control's refresh. True when it wrote.
    enum class Then { Refresh, Stop };
    bool write(const QVariant &value, Then then = Then::Refresh);
    // The control whose write is under way, or null: whoever follows the table's changes tells
    // the control the user is editing (it shows the value already) from the others.
    static QWidget *writing();
    // The number of the write under way (or the last one): it grows with every write, so the
    // changes told during one write (a radio group's members) share it.
    static quint64 writeSerial();

    // The control's updateControl(0).
    void refresh() const { kind.updateControl(self, 0); }

    // The frame of updateControl: remembers a non-zero hardware id, hides or shows the control
    // and its related widgets by the visibility rules, then runs `paint`. Unbound it runs
    // `unboundPaint` instead (nothing for most controls).
    template <class Paint, class UnboundPaint>
    void update(int id, Paint paint, UnboundPaint unboundPaint)
    {
        if (!iface) {
            unboundPaint();
            return;
        }
        applyVisibility(id);
        paint();
    }
    template <class Paint> void update(int id, Paint paint)
    {
        update(id, paint, [] {});
    }

    // Paints red unless `valid`, else yellow when the host reports the parameter modified
    // (asked only then), else white; and tells the same beyond colour (present()). `why`
    // gives the reason of an invalid value the control itself found; without one the reason
    // is looked for in the host's rules (invalidReason()).
    void paintState(const BackgroundSheets &sheets, bool valid, const QString &why = QString());
    // Paints the red of an edit refused before it reached the host, with its reason.
    void paintRefused(const BackgroundSheets &sheets, const QString &why);

    // Tells the state beyond colour: the corner cue, the tool tip's state line, the accessible
    // description, and text colours readable on `textBackground` (where the sheet paints one).
    void present(statecue::State state, const QString &detail = QString(),
                 const QColor &textBackground = QColor());
    // For a list or table editor: the parameter's state as a whole in words; its elements
    // carry their own cues.
    void presentCollection();
    // For a check box or radio button: normal, or modified with the stored state in words
    // where the host tells it; `checked` reads a stored value as checked or not.
    template <class Checked> void presentChecked(bool modified, Checked checked)
    {
        const QVariant stored = modified ? storedValue() : QVariant();
        present(modified ? statecue::State::Modified : statecue::State::Normal,
                stored.isValid() ? statecue::checkedWords(checked(stored)) : QString());
    }
    // Why the host calls the value invalid, where the library knows it: a range or length or
    // pattern the host's table or the record holds. Empty when it cannot tell.
    QString invalidReason() const;
    // The stored value, where the host tells it (a ParameterTable does); invalid otherwise.
    QVariant storedValue() const;
    // The stored value as the user reads it: an option's text, else the value's own text.
    QString storedText() const;

    // True when the bound parameter does not exist or is closed for the present device.
    bool isHiddenNow(int hardwareId);

    // The protocol's operations, each ending in the control's refresh where it refreshes.
    void setEnabled(bool enable);
    void updateEnableState(bool state);
    // The widget's own setHidden, then the request recorded in the bound record.
    void setHidden(bool hidden);

private:
    bool bindOnly(MainConfigIFace *table, int ref, const QList<QWidget *> &related);
    void registerIn(QWidget *label, NullLabel nullLabel) const;
    void applyVisibility(int id);

    QWidget *const self;
    const BoundKind &kind;
    int loadingDepth = 0;
    statecue::Memo cue;
};

// Applies a style sheet unless the widget already holds exactly this one: re-applying an
// equal sheet makes the toolkit re-polish the widget for nothing.
void applyStyleSheet(QWidget *widget, const QString &sheet);

// Whether the system locale reads "1.1" as a number, i.e. writes decimals with a point
// (else they are taken to use a comma). Asked anew each time, like the locale itself.
bool systemLocaleUsesPoint();

// A whole number of the record read signed or unsigned; unsigned numbers above 0x7fffffff
// arrive negative in the widget, deliberately.
inline int wholeNumber(const QVariant &value, bool isSigned)
{
    return isSigned ? value.toInt() : int(value.toUInt());
}

// Sets a spin box's bounds from the bound record and then `value`, in that order, each
// read by its own function. The value is read from the host before the bounds are set:
// each bound's echo reaches the host's setValue and would otherwise replace it.
template <class SpinBox, class ReadBound, class ReadValue>
void loadRange(SpinBox *box, const BoundControl &bound, const QVariant &value, ReadBound readBound,
               ReadValue readValue)
{
    box->setMinimum(readBound(bound.record().minimum));
    box->setMaximum(readBound(bound.record().maximum));
    box->setValue(readValue(value));
}
