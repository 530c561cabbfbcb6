// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The reader of uncompressed files with enciphered pages.
#include "fuzz/decryptentry.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    return fuzzWholeFileReader<&firmware::decrypt1>(data, size);
}
