// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "demotable.h"

#include <QWidget>
#include <functional>

// One bound control of the demo's form, whatever its kind: the demo binds it again after a
// revert (binding is what loads a value into a control) and refreshes it on every change
// of version, hardware or licence.
struct FormControl
{
    QWidget *widget = nullptr;
    std::function<void()> bind;
    std::function<void(int)> refresh;
};

// Creates the control the parameter's `control` names ("checkbox", "spinbox", ...), bound to
// `table`. Returns a null widget for a kind the demo does not know.
FormControl createFormControl(int ref, const ParameterTable::Presentation &parameter,
                              MainConfigIFace *table, QWidget *label, QWidget *parent);
