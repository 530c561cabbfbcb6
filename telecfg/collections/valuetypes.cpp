// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/collections/valuetypes.h"
#include "telecfg/network/countrytable.h"

QString networkText(quint32 networkId)
{
    QString countryName;
    QString operatorName;
    networkNames(networkId, countryName, operatorName);
    const quint32 number = (networkId >> 10) * 1000 + (networkId & 1023);
    // A network code of 1000 or more runs into the country digits; hosts know it so.
    return QStringLiteral("%1 %2 %3")
        .arg(number, 6, 10, QLatin1Char('0'))
        .arg(countryName, operatorName);
}
