// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"
#include "telecfg/controls/visibility.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QString;

// Internal to the library, never installed: each control holds one in its private part.
//
// The protocol every bound control shares: its binding to one parameter, the visibility
// rules of a refresh, the host's enable gate and the hidden request. A control holds one
// of these as a plain member and adds only its own painting and editing; the controls
// cannot share a base class because each derives from a different toolkit widget and
// must not add virtual operations.
class BoundControl
{
public:
    MainConfigIFace *iface = nullptr;
    int reference = 0;
    bool enableState = true;
    // Guarded like the toolkit's own widget mappers guard their widgets: the host may delete
    // a related widget (or pass none) and the control must go on without it.
    QList<QPointer<QWidget>> relatedWidgets;
    int hardwareId = 0;
    bool error = false;

    // Stores the binding and clears `error`. False for a null interface: the control then
    // stays unbound and the caller stops.
    bool bind(MainConfigIFace *iface, int ref, const QList<QWidget *> &related);
    // The bound record, fetched anew at every call (the host may rebuild it).
    MainConfigObject &record() const { return iface->object(reference); }
    // Writes `control` and `label` into the bound record.
    void registerIn(QWidget *control, QWidget *label) const;

    // The visibility steps of a refresh: remembers a non-zero hardware id, decides from
    // the version range, the hardware list, the hidden flag and the licence gate, and hides
    // or shows `self` and the related widgets. Returns false (doing nothing) when unbound;
    // the caller then skips its painting step.
    bool refreshVisibility(QWidget *self, int hardwareId);
    // True when the bound parameter does not exist or is closed for the present device.
    bool isHiddenNow(int hardwareId);

    // The widget's own setHidden, then the request recorded in the bound record.
    // Returns true when bound, so the caller refreshes.
    bool setHidden(QWidget *self, bool hidden);
    // Enables the widget only while the host's gate is open.
    void setEnabled(QWidget *self, bool enable) const;
    // Stores the gate; closing it disables, opening it leaves the widget as it is.
    void updateEnableState(QWidget *self, bool state);
};

// Applies a style sheet unless the widget already holds exactly this one: re-applying an
// equal sheet makes the toolkit re-polish the widget for nothing.
void applyStyleSheet(QWidget *widget, const QString &sheet);

// Whether the system locale reads "1.1" as a number, i.e. writes decimals with a point
// (else they are taken to use a comma). Asked anew each time, like the locale itself.
bool systemLocaleUsesPoint();

// Defines, in a control's source file, the protocol operations that read the same in every
// bound control: the error flag, the host's enable gate and the hidden request. The control
// holds a BoundControl named `bound` in its private part `d` and declares these operations itself
// (some are slots, which the meta-object compiler must see); only its updateControl is its own.
#define TELECFG_BOUND_CONTROL_OPERATIONS(Control)                                                  \
    void Control::setError(bool error)                                                             \
    {                                                                                              \
        d->bound.error = error;                                                                    \
    }                                                                                              \
    bool Control::isError()                                                                        \
    {                                                                                              \
        return d->bound.error;                                                                     \
    }                                                                                              \
    void Control::setEnabled(bool bEnable)                                                         \
    {                                                                                              \
        d->bound.setEnabled(this, bEnable);                                                        \
        updateControl(0);                                                                          \
    }                                                                                              \
    void Control::updateEnableState(bool state)                                                    \
    {                                                                                              \
        d->bound.updateEnableState(this, state);                                                   \
        updateControl(0);                                                                          \
    }                                                                                              \
    void Control::setHidden(bool hidden)                                                           \
    {                                                                                              \
        if (d->bound.setHidden(this, hidden))                                                      \
            updateControl(0);                                                                      \
    }
