// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The container types of collection parameters and their registration with QVariant.

#include "telecfg/config/mainconfig.h"
#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QMetaType>
#include <QVector>

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
