// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Library-wide set-up: the table filler GUI, bold group box titles and the licence level.

#include "telecfg/telecfg_export.h"

class QGroupBox;

/// Prepares the library's tables: constructing it fills the country and operator table (see
/// telecfg/network/countrytable.h). The host constructs it once at start-up; it holds no data.
class TELECFG_EXPORT GUI
{
public:
    /// Fills the country and operator table (fillCountryTable()).
    GUI();
    /// Copies nothing: the object holds no data.
    GUI(const GUI &) = default;
    /// Deliberately does nothing, as hosts expect of an object without data.
    /// @return this object.
    GUI &operator=(const GUI &) = default;
};

/// Makes the title of a group box bold while every widget inside it keeps a normal (50) or
/// bold (75) weight: children heavier than QFont::Medium come back bold, all others normal.
/// @param box the group box; not owned. A null box is left alone.
TELECFG_EXPORT void setGroupBoxTitleBold(QGroupBox *box);

/// Sets the process-wide licence level. A parameter whose `licenceGate` is greater than
/// this level is hidden by every bound control. The level is 0 until the host sets one.
/// @param level the new level.
TELECFG_EXPORT void setGUILicenseLevel(int level);
