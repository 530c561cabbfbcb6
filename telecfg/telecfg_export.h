// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// TELECFG_EXPORT, which marks what the shared library exports.

// Marks what hosts use; everything else in the shared library stays hidden.
/// @def TELECFG_EXPORT
/// Marks a class or function hosts use; everything else in the shared library stays hidden.
/// Empty in the static library and in whatever links it (TELECFG_STATIC_DEFINE, which the
/// CMake target telecfg_static passes on).
#if defined(TELECFG_STATIC_DEFINE)
#define TELECFG_EXPORT
#elif defined(_WIN32)
#if defined(TELECFG_BUILDING_LIBRARY)
#define TELECFG_EXPORT __declspec(dllexport)
#else
#define TELECFG_EXPORT __declspec(dllimport)
#endif
#else
#define TELECFG_EXPORT __attribute__((visibility("default")))
#endif
