// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The value types of the collection editors: the container types (collectiontypes.h), the
/// live flag of an element and the text of a mobile network.

#include "telecfg/config/collectiontypes.h"
#include "telecfg/telecfg_export.h"

#include <QString>

/// Bit of the number a collection item holds under Qt::UserRole together with its place:
/// set while the element is present, clear once it has been removed.
constexpr quint32 liveFlag = 0x10000000;

/// The text of a mobile network element: the six-digit country and network number, the
/// country name and the operator name ("260003 Polska Orange").
/// @param networkId the mobile network id (country code from bit 10, network code below).
/// @return the text; unknown codes read as the country and operator table names them.
TELECFG_EXPORT QString networkText(quint32 networkId);
