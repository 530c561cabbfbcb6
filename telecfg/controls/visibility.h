// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The one visibility decision of the bound controls.

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

/// Why a bound control is hidden at a refresh, in the order the checks are made; the first
/// reason that applies is the one given. Every bound control decides its visibility by
/// hiddenReason, so what it says is what the control does.
enum class HiddenReason {
    Shown,             ///< not hidden
    NoVersionRange,    ///< the record names no lowest version for its key nor for key 0: from 99 on
    BelowVersionRange, ///< configuration version (parameter 2) below the lowest version
    AboveVersionRange, ///< above the highest version (0 = no upper limit)
    HardwareNotListed, ///< the hardware id is not among the record's hardwareIds
    HiddenOnRequest,   ///< the record's `hidden`, set by setHidden
    ClosedByLicence,   ///< licenceGate above the level given to setGUILicenseLevel
};

/// The reason a parameter's control is hidden, from the record as the interface holds it now.
/// @param iface the parameter table; its record of `ref` is read, and created empty by a
///        table that does so for an unknown number.
/// @param ref the parameter number.
/// @param hardwareId the hardware id, taken as given (0 is an id like any other here).
/// @return the first reason that applies, or HiddenReason::Shown.
TELECFG_EXPORT HiddenReason hiddenReason(MainConfigIFace &iface, int ref, int hardwareId);
