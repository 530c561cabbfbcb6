// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QtGlobal>
#include <optional>

class QWidget;

// Asks the user for a mobile network in the country and operator dialog ("Sieć komórkowa"):
// a country and an operator picked by name from the built-in table or typed as codes. The
// dialog starts from `preset` (0 leaves both fields empty). Returns the chosen mobile network
// id (country code << 10 | network code; 998 = every operator, 999 = unknown), or nothing
// when the user cancels.
//
//     if (const auto id = chooseMobileNetwork(this, current))
//         list->addValue(*id, ref);
TELECFG_EXPORT std::optional<quint32> chooseMobileNetwork(QWidget *parent, quint32 preset = 0);
