// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QtGlobal>

// CRC-16/X-25 of the whole array; the value is in the low 16 bits. Always starts afresh.
TELECFG_EXPORT quint32 crc16(QByteArray &data);
// CRC-16/X-25 continued: *crc holds a finished checksum before and after the call, so a
// message may be fed in several calls. A length of 0 or less leaves *crc as it is.
TELECFG_EXPORT void crc16(quint16 *crc, char *data, int length);
// CRC-32 (zlib, Ethernet) continued from a previous result; 0 starts a new one.
TELECFG_EXPORT quint32 crc32next(quint32 crc, const unsigned char *data, quint64 length);
// CRC-8 of 1-Wire devices: no initial value, no final inversion.
TELECFG_EXPORT quint8 crc8(const QByteArray &data);
// The same CRC-32 as crc32next(0, data, length); 0 for a length of 0 or less.
TELECFG_EXPORT quint32 docrc32(const unsigned char *data, int length);
// The same CRC-32 as crc32next(0, data, length), taken in steps of pageSize + 8 bytes
// after the first 8; the result does not depend on pageSize.
TELECFG_EXPORT quint32 get_whole_crc(unsigned char *data, int length, int pageSize);
