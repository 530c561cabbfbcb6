// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/translations.h"

#include <QtGlobal>

void telecfgInitTranslations()
{
    Q_INIT_RESOURCE(telecfg_translations);
}
