// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QWidget>
#include <functional>
#include <memory>

// One bound control of any kind behind a common face, so a protocol test can run the
// same table over every kind. Each kind calls its own (non-virtual) operations.
struct AnyControl
{
    std::unique_ptr<QWidget> widget;
    std::function<void(MainConfigIFace *, int, QWidget *, QList<QWidget *>)> setReference;
    std::function<void(int)> updateControl;
    std::function<void(bool)> setEnabled;
    std::function<void(bool)> updateEnableState;
    std::function<void(bool)> setHidden;
    std::function<void(bool)> setError;
    std::function<bool()> isError;
    // One edit through the widget's own change path, as the user makes it (for the collection
    // editors an add of a new element to the bound parameter).
    std::function<void()> userEdit;
    // A signal of the control's own that the user edit emits (SIGNAL() form).
    const char *editSignal = nullptr;
};

template <class Control> AnyControl makeAnyControl()
{
    AnyControl any;
    auto *control = new Control;
    any.widget.reset(control);
    any.setReference = [control](MainConfigIFace *iface, int ref, QWidget *label,
                                 QList<QWidget *> related) {
        control->setReference(iface, ref, label, related);
    };
    any.updateControl = [control](int id) { control->updateControl(id); };
    any.setEnabled = [control](bool on) { control->setEnabled(on); };
    any.updateEnableState = [control](bool on) { control->updateEnableState(on); };
    any.setHidden = [control](bool hidden) { control->setHidden(hidden); };
    any.setError = [control](bool error) { control->setError(error); };
    any.isError = [control]() { return control->isError(); };
    return any;
}

// The kinds a protocol test runs over, by name ("checkbox", ...). Add each new kind here.
QStringList anyControlKinds();
// The six single-value controls, which have a user edit and paint through a style sheet.
QStringList valueControlKinds();
AnyControl makeAnyControl(const QString &kind);

class TestHost;
// Adds at `ref` a record of the kind's usual type on which the user edit writes to the host.
MainConfigObject &addEditableRecord(TestHost &host, const QString &kind, int ref);

// The list's selection connection fails on purpose (the list ignores selection changes);
// suites that make lists allow its warning with this.
void allowListConnectionWarning();
