// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// Payloads that look like what goes into firmware images, shared by the firmware tests,
// the fuzz seed writer and the benchmarks.

#include <QByteArray>
#include <QRandomGenerator>
#include <iterator>

enum class PayloadKind {
    FirmwareLike, // machine code: frequent opcodes, random operands, some erased pages
    Random,       // incompressible
    Erased,       // all 0xFF, as blank flash reads
    FarRepeats,   // pages repeated four pages later: matches that lie beyond the last record
};

inline QByteArray makePayload(PayloadKind kind, int size, quint32 seed = 1)
{
    QRandomGenerator random(seed);
    QByteArray data(size, char(0xFF));
    char *p = data.data();
    switch (kind) {
    case PayloadKind::Erased:
        break;
    case PayloadKind::Random:
        for (int i = 0; i < size; ++i)
            p[i] = char(random.bounded(256));
        break;
    case PayloadKind::FarRepeats:
        for (int i = 0; i < size; ++i)
            p[i] = i < 4 * 2048 ? char(random.bounded(256)) : p[i - 4 * 2048];
        break;
    case PayloadKind::FirmwareLike: {
        static const quint16 opcodes[] = {0xB580, 0xBD80, 0x4770, 0x2000, 0x2001, 0x6800,
                                          0x6018, 0x4618, 0x4608, 0x3001, 0x2800, 0xD100,
                                          0xE7FE, 0xF000, 0xF800, 0x9000, 0x9800, 0x1C40,
                                          0x0000, 0x4B00, 0x681B, 0x605A, 0xB082, 0xB002};
        for (int i = 0; i + 1 < size; i += 2) {
            if ((i / 2048) % 9 == 8)
                continue; // an erased page now and then
            const quint32 pick = random.bounded(100);
            if (pick < 4 && i >= 1024 && i + 32 <= size) {
                // A sequence seen shortly before: prologues, epilogues, inlined helpers.
                const int from = i - 2 * int(random.bounded(16, 512));
                for (int k = 0; k < 32; ++k)
                    p[i + k] = p[from + k];
                i += 30;
                continue;
            }
            const quint16 word = pick < 85 ? opcodes[random.bounded(int(std::size(opcodes)))]
                                           : quint16(random.bounded(65536));
            p[i] = char(word & 0xFF);
            p[i + 1] = char(word >> 8);
        }
        break;
    }
    }
    return data;
}
