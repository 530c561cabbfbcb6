// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/config/mainconfig.h"

#include <QString>

// Internal to the library. A parameter and its values as the user reads them.
namespace valuetext {
// The parameter's name: its label's text, else the name the table gives it, else its number.
QString name(MainConfigIFace &table, int ref);
// A value of the parameter: an option's text where the record has options, else the value's.
QString text(MainConfigIFace &table, int ref, const QVariant &value);
} // namespace valuetext
