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

// The protocol's face of a bound control of any kind, reached through its meta-object; the
// edit and its signal are left empty.
AnyControl makeAnyControl(std::unique_ptr<QWidget> control);

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
