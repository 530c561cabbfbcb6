// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// Internal to the library, never installed. The licence level of the running application,
// which hides parameters whose records ask for more; setGUILicenseLevel sets it.

// The level last set (0 until the host sets one).
int guiLicenseLevel();
// Sets the level.
void setLicenceLevel(int level);
