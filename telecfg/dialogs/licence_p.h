// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// The level last given to setGUILicenseLevel (0 until the host sets one).
int guiLicenseLevel();
