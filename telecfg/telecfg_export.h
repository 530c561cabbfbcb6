// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

// Marks what hosts use; everything else in the shared library stays hidden.
#if defined(_WIN32)
#  if defined(TELECFG_BUILDING_LIBRARY)
#    define TELECFG_EXPORT __declspec(dllexport)
#  else
#    define TELECFG_EXPORT __declspec(dllimport)
#  endif
#else
#  define TELECFG_EXPORT __attribute__((visibility("default")))
#endif
