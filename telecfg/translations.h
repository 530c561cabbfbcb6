// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The library's translations.
///

#include "telecfg/telecfg_export.h"

/// The library's texts are Polish; its other languages are compiled into its resources as
/// catalogues at ":/telecfg/translations/telecfg_<language>.qm" (English: telecfg_en.qm).
/// A host installs one with a QTranslator before it creates the library's widgets and the
/// country table (GUI), for example:
///
/// @code
/// telecfgInitTranslations();
/// auto *translator = new QTranslator(&app);
/// if (translator->load(QLocale(), QStringLiteral("telecfg"), QStringLiteral("_"),
///                      QStringLiteral(":/telecfg/translations")))
///     QCoreApplication::installTranslator(translator);
/// @endcode
///
/// Without a translator the library stays Polish.

/// Makes the embedded catalogues available. A host that links the shared library has them
/// already; one that links the library statically calls this once first. Calling it again
/// does nothing more.
TELECFG_EXPORT void telecfgInitTranslations();
