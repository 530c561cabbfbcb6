// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/version.h"

const char *telecfgVersion()
{
    return TELECFG_VERSION_STRING;
}
