// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/checksums.h"

#include <array>
#include <zlib.h>

namespace {

// Reflected table for the polynomial whose reflected form is `poly`.
template <typename T> constexpr std::array<T, 256> makeTable(T poly)
{
    std::array<T, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        T value = T(i);
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1) ? T((value >> 1) ^ poly) : T(value >> 1);
        table[i] = value;
    }
    return table;
}

constexpr auto table16 = makeTable<quint16>(0x8408);
constexpr auto table8 = makeTable<quint8>(0x8C);

inline quint16 crc16Bytes(quint16 state, const unsigned char *p, const unsigned char *end)
{
    while (p != end)
        state = quint16((state >> 8) ^ table16[(*p++ ^ state) & 0xFF]);
    return state;
}

} // namespace

quint32 crc16(QByteArray &data)
{
    const auto *p = reinterpret_cast<const unsigned char *>(data.constData());
    return quint16(~crc16Bytes(0xFFFF, p, p + data.size()));
}

// `data` stays non-const: hosts' binaries call this exact signature.
// NOLINTNEXTLINE(readability-non-const-parameter)
void crc16(quint16 *crc, char *data, int length)
{
    if (!crc || !data || length <= 0)
        return;
    const auto *p = reinterpret_cast<const unsigned char *>(data);
    *crc = quint16(~crc16Bytes(quint16(~*crc), p, p + length));
}

quint32 crc32next(quint32 crc, const unsigned char *data, quint64 length)
{
    if (!data)
        return crc;
    // zlib's crc32 is this very CRC (reflected 0x04C11DB7, all-ones start, inverted end)
    // and continues from a finished value in the same way; it takes size_t lengths.
    uLong state = crc;
    while (length > 0) {
        const z_size_t chunk = z_size_t(qMin<quint64>(length, 1u << 30));
        state = crc32_z(state, data, chunk);
        data += chunk;
        length -= chunk;
    }
    return quint32(state);
}

quint8 crc8(const QByteArray &data)
{
    quint8 state = 0;
    for (const char c : data)
        state = table8[quint8(c) ^ state];
    return state;
}

// Once taken bit by bit through an augmented register whose start 32 shifts turn into all
// ones, bytes fed lowest bit first and the result reversed and inverted: that is the
// reflected CRC-32 with the all-ones start and the inverted end, the one crc32next computes.
quint32 docrc32(const unsigned char *data, int length)
{
    if (!data || length <= 0)
        return 0;
    return crc32next(0, data, quint64(length));
}

// Chaining continues the CRC exactly, so the steps of pageSize + 8 bytes cannot change the
// result: one pass over the whole range gives it.
quint32 get_whole_crc(unsigned char *data, int length, int pageSize)
{
    Q_UNUSED(pageSize)
    if (!data || length <= 0)
        return 0;
    return crc32next(0, data, quint64(length));
}
