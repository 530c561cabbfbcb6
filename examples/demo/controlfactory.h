#pragma once

#include "telecfg/config/mainconfig.h"

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

// Creates the control named by `kind` ("checkbox", ...) for parameter `ref`, bound to
// `table`. Returns a null widget for a kind the demo does not know.
FormControl createFormControl(const QString &kind, MainConfigIFace *table, int ref,
                              const QString &text, QWidget *label, QWidget *parent);
