// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/images/defaultimages.h"

#include <QtGlobal>

// Q_INIT_RESOURCE has to stand outside any namespace; the resource name is the .qrc file's.
static void initImageResource()
{
    Q_INIT_RESOURCE(telecfg_images);
}

void initDefaultImages()
{
    static const bool done = (initImageResource(), true);
    Q_UNUSED(done)
}
