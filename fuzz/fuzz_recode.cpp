// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The compressed body reader, fed bodies as they stand after the outer header.
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray body(reinterpret_cast<const char *>(data), int(size));
    const int code = firmware::recode(body, outerKey);
    if (code != 0 && code != 2)
        __builtin_trap();
    return 0;
}
