// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/countrytable.h"
#include "telecfg/network/countrytable_data_p.h"

#include <QMultiMap>
#include <QObject>

NetworkMap<quint32, CountryEntry> countryTable;

void fillCountryTable()
{
    using namespace countrydata;

    // Built as QMultiMap, whose insert is the multi-insert (a later value in front of the
    // earlier ones of its key), then handed over to the plain maps the interface names.
    countryTable.clear();
    QMultiMap<quint32, CountryEntry> table;
    CountryEntry entry;
    for (int c = 0; c < countryRowCount; ++c) {
        const CountryRow &country = countryRows[c];
        entry.name = QObject::tr(country.name);
        QMultiMap<quint32, QString> operators;
        for (int o = country.firstOperator; o < country.firstOperator + country.operatorCount; ++o)
            operators.insert(operatorRows[o].mnc, QString::fromUtf8(operatorRows[o].name));
        entry.operators = operators;
        table.insert(country.mcc, entry);
    }
    countryTable = table;
}

void networkNames(quint32 networkId, QString &countryName, QString &operatorName)
{
    if (countryTable.isEmpty())
        fillCountryTable();

    const quint32 mcc = networkId >> 10;
    const quint32 mnc = networkId & 0x3FF;
    const auto country = countryTable.constFind(mcc);
    if (country != countryTable.constEnd()) {
        countryName = country->name;
        const auto op = country->operators.constFind(mnc);
        if (op != country->operators.constEnd()) {
            operatorName = *op;
            return;
        }
    } else {
        countryName = QObject::tr("Nieznany");
    }
    operatorName = mnc == CodeAll ? QObject::tr("Wszystkie") : QObject::tr("Nieznany");
}
