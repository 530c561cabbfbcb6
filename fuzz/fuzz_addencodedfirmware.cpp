// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The encoded-image loader of the firmware object.
#include "telecfg/firmware/firmware.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    firmware fw;
    const int code =
        fw.addEncodedFirmware(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    if (code != 0 && code != -1 && code != -2)
        __builtin_trap();
    return 0;
}
