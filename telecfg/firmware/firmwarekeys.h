// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// Built-in keys of the firmware file format and the legacy word chain's constants.
// Private to the library: this header is never installed.

#include <QtGlobal>

// Enciphers the outer layer of the files the configurator writes itself.
constexpr unsigned char outerKey[16] = {0x5A, 0x1C, 0xE7, 0x93, 0x08, 0xB4, 0x6F, 0x21,
                                        0xD2, 0x4E, 0x97, 0x3B, 0xA0, 0x65, 0xF8, 0x1D};
// Enciphers the pages and the size block of an image.
constexpr unsigned char pageKey[16] = {0xC3, 0x70, 0x2E, 0x89, 0x5B, 0xF1, 0x14, 0xA6,
                                       0x3D, 0xE2, 0x7F, 0x48, 0x96, 0x0B, 0xD5, 0x62};

// The word before the first in the legacy word chain, and the constant added to each
// cipher word before it is combined with the next.
constexpr quint32 legacyChainSeed = 0x6B2D91E4u;
constexpr quint32 legacyChainConstant = 0x3C5A7F19u;
