// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/mainconfig.h"

MainConfigIFace::~MainConfigIFace() = default;

namespace {
int versionLookup(QMap<int, int> &versions, int key, int fallback)
{
    if (versions.contains(key))
        return versions[key];
    if (versions.contains(0))
        return versions[0];
    return fallback;
}
} // namespace

int getConfigMinVersion(MainConfigObject &object)
{
    return versionLookup(object.minVersions, object.versionKey, 99);
}

int getConfigMaxVersion(MainConfigObject &object)
{
    return versionLookup(object.maxVersions, object.versionKey, 0);
}
