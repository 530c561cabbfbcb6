// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// The readers of whole-file forms share their fuzz entry: the first byte asks for the header
// only, the rest is the file.
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <cstddef>
#include <cstdint>

template <int (*reader)(QByteArray &, int &, int &, const unsigned char *, unsigned)>
int fuzzWholeFileReader(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    QByteArray file(reinterpret_cast<const char *>(data + 1), int(size - 1));
    int hw1 = 0;
    int hw2 = 0;
    reader(file, hw1, hw2, outerKey, data[0] & 1);
    return 0;
}
