// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The whole file reader: the first byte chooses the caller's flags, the rest is the file.
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const uint8_t flags = data[0];
    QByteArray file(reinterpret_cast<const char *>(data + 1), int(size - 1));
    // Bit 4 puts the right outer checksum in, so that mutations reach the routes behind it.
    if ((flags & 16) && file.size() >= 128) {
        const quint32 crc = docrc32(reinterpret_cast<const unsigned char *>(file.constData()) + 128,
                                    file.size() - 128);
        for (int i = 0; i < 4; ++i)
            file[4 + i] = char(crc >> (8 * i));
    }
    firmware(); // page size 2048, as a host starts
    // Bit 2 asks for the file's own hw1, so the routes that keep code 5 and those that don't
    // are both reached.
    int hw1 = (flags & 4) && file.size() >= 2 ? quint8(file[0]) | quint8(file[1]) << 8 : 0x1234;
    int hw2 = 0;
    bool wantCompressed = flags & 1;
    const bool decipher = flags & 2;
    unsigned encodedSize = 0;
    const unsigned char *key = (flags & 8) ? pageKey : outerKey;
    const int code =
        firmware::getFirmwareFromFile(file, hw1, hw2, key, wantCompressed, encodedSize, decipher);
    if (code < 0 || code > 5)
        __builtin_trap();
    return 0;
}
