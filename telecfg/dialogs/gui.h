#pragma once

#include "telecfg/telecfg_export.h"

// Sets the process-wide licence level. A parameter whose `licenceGate` is greater than
// this level is hidden by every bound control. The level is 0 until the host sets one.
TELECFG_EXPORT void setGUILicenseLevel(int level);
