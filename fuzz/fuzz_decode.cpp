// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The page splitter; the first byte chooses the page size, which need not be 2048.
#include "telecfg/firmware/firmware.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    static const int pageSizes[] = {2048, 1024, 16, 1, 2000, 0, -8};
    firmware fw;
    fw.setPageSize(pageSizes[data[0] % (sizeof pageSizes / sizeof *pageSizes)]);
    const QByteArray array(reinterpret_cast<const char *>(data + 1), int(size - 1));
    const QByteArray pages = firmware::decode(array);
    if (pages.size() > array.size())
        __builtin_trap();
    firmware();
    return 0;
}
