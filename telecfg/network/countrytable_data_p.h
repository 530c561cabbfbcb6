// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// The built-in table as plain constant data. countrytable_data.cpp is generated from
// data/e212-operators.tsv by tools/countrytable-gen; fillCountryTable builds the maps from it.
namespace countrydata {

struct OperatorRow
{
    quint16 mnc;
    const char *name; // UTF-8, never translated
};

struct CountryRow
{
    quint16 mcc;
    const char *name; // Polish source text, translated in the QObject context
    quint16 firstOperator;
    quint16 operatorCount;
};

// Rows in the order they are inserted.
extern const OperatorRow operatorRows[];
extern const CountryRow countryRows[];
extern const int countryRowCount;
extern const int operatorRowCount;

} // namespace countrydata
