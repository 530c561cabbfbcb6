// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/checksums.h"

#include <array>

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
constexpr auto table32 = makeTable<quint32>(0xEDB88320u);
constexpr auto table8 = makeTable<quint8>(0x8C);

inline quint16 crc16Bytes(quint16 state, const unsigned char *p, const unsigned char *end)
{
    while (p != end)
        state = quint16((state >> 8) ^ table16[(*p++ ^ state) & 0xFF]);
    return state;
}

constexpr quint32 polynomial = 0x04C11DB7u;
constexpr quint32 highBit = 0x80000000u;

// Runs the direct register backwards from the all-ones start, so that feeding the message
// and 32 zero bits through the direct (augmented) register gives the reflected CRC-32.
constexpr quint32 nonDirectInit()
{
    quint32 state = 0xFFFFFFFFu;
    for (int i = 0; i < 32; ++i) {
        const quint32 low = state & 1;
        if (low)
            state ^= polynomial;
        state >>= 1;
        if (low)
            state |= highBit;
    }
    return state;
}
constexpr quint32 initialNonDirect = nonDirectInit();

// One step of the direct register; the polynomial is masked in rather than branched on.
inline quint32 shiftIn(quint32 state, quint32 bit)
{
    const quint32 carry = state >> 31;
    return ((state << 1) | bit) ^ (polynomial & (0u - carry));
}

inline quint32 reverse32(quint32 v)
{
    v = ((v >> 1) & 0x55555555u) | ((v & 0x55555555u) << 1);
    v = ((v >> 2) & 0x33333333u) | ((v & 0x33333333u) << 2);
    v = ((v >> 4) & 0x0F0F0F0Fu) | ((v & 0x0F0F0F0Fu) << 4);
    v = ((v >> 8) & 0x00FF00FFu) | ((v & 0x00FF00FFu) << 8);
    return (v >> 16) | (v << 16);
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
    quint32 state = ~crc;
    const unsigned char *end = data + length;
    while (data != end)
        state = (state >> 8) ^ table32[(*data++ ^ state) & 0xFF];
    return ~state;
}

quint8 crc8(const QByteArray &data)
{
    quint8 state = 0;
    for (const char c : data)
        state = table8[quint8(c) ^ state];
    return state;
}

quint32 docrc32(const unsigned char *data, int length)
{
    if (!data || length <= 0)
        return 0;
    quint32 state = initialNonDirect;
    const unsigned char *end = data + length;
    for (; data != end; ++data) {
        // The byte's bits are reversed and fed from the highest down: its lowest bit first.
        const quint32 byte = *data;
        for (int bit = 0; bit < 8; ++bit)
            state = shiftIn(state, (byte >> bit) & 1);
    }
    for (int bit = 0; bit < 32; ++bit)
        state = shiftIn(state, 0);
    return ~reverse32(state);
}

quint32 get_whole_crc(unsigned char *data, int length, int pageSize)
{
    if (!data || length <= 0)
        return 0;
    const int head = qMin(length, 8);
    quint32 crc = crc32next(0, data, quint64(head));
    // The steps chain the running value, so their size never changes the result; a page size
    // that makes them empty or negative is taken as one step over the rest.
    const qint64 step = qint64(pageSize) + 8 > 0 ? qint64(pageSize) + 8 : length;
    for (qint64 at = head; at < length; at += step)
        crc = crc32next(crc, data + at, quint64(qMin<qint64>(step, length - at)));
    return crc;
}
