// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The value types of the collection editors and their registration with QVariant.

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVector>

/// Bit of the number a collection item holds under Qt::UserRole together with its place:
/// set while the element is present, clear once it has been removed.
constexpr quint32 liveFlag = 0x10000000;

/// The value of a table parameter: one column vector of Latin-1 texts per column.
using ColumnVectors = QVector<QVector<QByteArray>>;

/// Makes every collection container known to QVariant under the name hosts use for it
/// ("QVector<quint16>", "QVector<quint32>", "QVector<QString>", "QVector<QByteArray>",
/// "QVector<QVector<QByteArray> >", "QList<uint>", "QList<NamedUShort>", "QList<NamedUInt>"),
/// with sequential-iterable converters and equality for the vectors. The work is done once per
/// process; both editors call it on construction, a host may call it earlier.
TELECFG_EXPORT void registerCollectionTypes();

/// The meta-type id of one registered container.
/// @param name the container's name as listed for registerCollectionTypes(); not kept.
/// @return the id, or 0 for an unknown name.
TELECFG_EXPORT int collectionTypeId(const char *name);

/// The text of a mobile network element: the six-digit country and network number, the
/// country name and the operator name ("260003 Polska Orange").
/// @param networkId the mobile network id (country code from bit 10, network code below).
/// @return the text; unknown codes read as the country and operator table names them.
TELECFG_EXPORT QString networkText(quint32 networkId);
