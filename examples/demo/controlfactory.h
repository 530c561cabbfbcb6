// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/parametertable.h"

class QWidget;

// Creates the control the parameter's `control` names ("checkbox", "spinbox", ...), named
// cfg_<ref> so that the form binder binds it. Returns null for a kind the demo does not know.
QWidget *createControl(int ref, const ParameterTable::Presentation &parameter,
                       ParameterTable *table, QWidget *parent);
