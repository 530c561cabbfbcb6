// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/licence_p.h"

namespace {
int licenceLevel = 0;
}

int guiLicenseLevel()
{
    return licenceLevel;
}

void setLicenceLevel(int level)
{
    licenceLevel = level;
}
