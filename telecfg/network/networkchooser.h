// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Asking the user for a mobile network.

#include "telecfg/telecfg_export.h"

#include <QtGlobal>
#include <optional>

class QWidget;

/// Asks the user for a mobile network in the country and operator dialog ("Sieć komórkowa"):
/// a country and an operator picked by name from the built-in table or typed as codes. The
/// dialog is modal and deleted before the call returns.
///
/// @code
/// if (const auto id = chooseMobileNetwork(this, current))
///     list->addValue(*id, ref);
/// @endcode
/// @param parent the dialog's parent; may be null.
/// @param preset the mobile network id the dialog starts from; 0 leaves both fields empty.
/// @return the chosen mobile network id (country code << 10 | network code; network code 998
///         = every operator, 999 = unknown), or nothing when the user cancels.
TELECFG_EXPORT std::optional<quint32> chooseMobileNetwork(QWidget *parent, quint32 preset = 0);
