// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The reader of fully enciphered and tagged files.
#include "fuzz/decryptentry.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    return fuzzWholeFileReader<&firmware::decrypt>(data, size);
}
