// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The colours the bound controls paint their states in: the standard ones, or a set for an
/// application with a dark palette.

#include "telecfg/telecfg_export.h"

/// A set of state colours for every bound control of the application.
enum class StateColours {
    /// Red, yellow and white backgrounds with dark text, and the combo box's and the collection
    /// editors' own colours: the style sheets hosts have always had. The default.
    Standard,
    /// Dark red, dark amber and dark grey backgrounds with light text, for an application with a
    /// dark palette. The sheets are those of the standard set with these colours; the check box
    /// and radio button images stay as they are.
    Dark,
};

/// Chooses the state colours of the whole application. Call it once at start-up, before the
/// first bound control is made: a control takes the set at its next refresh, a list or table
/// editor its text colours when it is made.
/// @param colours the set to use from now on.
TELECFG_EXPORT void setStateColours(StateColours colours);

/// The state colours in use.
/// @return the set last given to setStateColours(), StateColours::Standard until then.
TELECFG_EXPORT StateColours stateColours();
