// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The country and mobile operator table built into the library.

#include "telecfg/telecfg_export.h"

#include <QMap>
#include <QMultiMap>
#include <QString>

/// The map type of both levels of the network table. Qt 5's QMap holds several values under
/// one key itself; Qt 6 keeps that in QMultiMap only, so the Qt 6 build declares both levels
/// as QMultiMap, with the same order and lookups.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
template <class Key, class T> using NetworkMap = QMultiMap<Key, T>;
#else
template <class Key, class T> using NetworkMap = QMap<Key, T>;
#endif

/// The mobile networks the library knows: country code (E.212 MCC) to country entry, and in
/// each entry network code (MNC) to operator name. A mobile network id packs both codes:
/// the country code from bit 10 upward, the network code in the low 10 bits.
///
/// Both levels are multi-maps: a key may occur more than once, the value inserted last stands
/// in front of its key and is the one a lookup finds.
struct CountryEntry
{
    /// The country's name, translated.
    QString name;
    /// Network code (MNC) to operator name.
    NetworkMap<quint32, QString> operators;
};

/// The table, country code (MCC) to entry; empty until fillCountryTable() or GUI fills it.
TELECFG_EXPORT extern NetworkMap<quint32, CountryEntry> countryTable;

// Network codes with a fixed meaning; the table holds neither.

/// The network code of an unknown network.
constexpr quint32 CodeUnknown = 999;
/// The network code standing for every network of a country.
constexpr quint32 CodeAll = 998;

/// Empties countryTable and builds it anew from the built-in data (country names translated
/// in the QObject context, operator names as they stand). Constructing GUI calls it.
TELECFG_EXPORT void fillCountryTable();

/// Gives the country and operator texts of a mobile network id, filling the table first when
/// it is empty. Unknown codes read "Nieznany"; network code 998 reads "Wszystkie" even for an
/// unknown country.
/// @param networkId the mobile network id.
/// @param[out] countryName the country's name.
/// @param[out] operatorName the operator's name.
TELECFG_EXPORT void networkNames(quint32 networkId, QString &countryName, QString &operatorName);
