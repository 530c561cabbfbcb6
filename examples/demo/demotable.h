// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/parametertable.h"

// The demo's host table: the library's ready table, loaded from a JSON file (or the embedded
// sample) that the demo reads itself.
class DemoTable : public ParameterTable
{
public:
    // Loads a table; on failure returns false and says why in `error`.
    bool load(const QString &path, QString *error);
};
