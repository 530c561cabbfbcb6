// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "demotable.h"

#include <QFile>

bool DemoTable::load(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot open %1: %2").arg(path, file.errorString());
        return false;
    }
    if (loadJson(file.readAll(), error))
        return true;
    *error = QStringLiteral("%1: %2").arg(path, *error);
    return false;
}
