// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/countrytable.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QFile>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

namespace {

using Rows = QList<QPair<quint32, QString>>;
using Multi = QMultiMap<quint32, CountryEntry>; // all entries of a code, latest first

struct DataEntry
{
    quint32 mcc;
    QString name;
    Rows rows; // network code and name, in file order
};

// The data file the table is generated from, grouped into entries as it is inserted.
QList<DataEntry> readData()
{
    QList<DataEntry> entries;
    QFile file(QStringLiteral(TELECFG_COUNTRY_DATA));
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        line.chop(line.endsWith('\n') ? 1 : 0); // names keep their trailing blanks
        const QList<QByteArray> f = line.split('\t');
        if (line.isEmpty() || line.startsWith('#') || f.size() != 4)
            continue;
        const quint32 mcc = f[0].toUInt();
        const QString country = QString::fromUtf8(f[1]);
        if (entries.isEmpty() || entries.last().mcc != mcc || entries.last().name != country)
            entries.append({mcc, country, {}});
        entries.last().rows.append({f[2].toUInt(), QString::fromUtf8(f[3])});
    }
    return entries;
}

class FakeTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QString::fromLatin1(context) + QLatin1Char(':') + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestCountryTable : public TestCase
{
    Q_OBJECT

private slots:
    void init() { fillCountryTable(); }

    void tableMatchesData();
    void duplicates();
    void networkNamesTexts_data();
    void networkNamesTexts();
    void countryNamesTranslatedOperatorsNot();
};

void TestCountryTable::tableMatchesData()
{
    const QList<DataEntry> data = readData();
    QCOMPARE(data.size(), 222);
    QCOMPARE(countryTable.size(), 222);
    QCOMPARE(Multi(countryTable).uniqueKeys().size(), 221);

    int total = 0;
    for (const DataEntry &e : data) {
        const QList<CountryEntry> found = Multi(countryTable).values(e.mcc);
        const auto it = std::find_if(found.cbegin(), found.cend(),
                                     [&](const CountryEntry &c) { return c.name == e.name; });
        QVERIFY2(it != found.cend(), qPrintable(QString::number(e.mcc) + ' ' + e.name));

        // Ascending network code, and within a code the latest row first.
        Rows wanted = e.rows, actual;
        std::reverse(wanted.begin(), wanted.end());
        std::stable_sort(wanted.begin(), wanted.end(),
                         [](const auto &a, const auto &b) { return a.first < b.first; });
        for (auto o = it->operators.cbegin(); o != it->operators.cend(); ++o)
            actual.append({o.key(), *o});
        QCOMPARE(actual, wanted);
        total += actual.size();
    }
    QCOMPARE(total, 2030);
}

void TestCountryTable::duplicates()
{
    // Of two entries of a code the later one is found first, and so is the later operator.
    const QList<CountryEntry> of542 = Multi(countryTable).values(542);
    QCOMPARE(of542.size(), 2);
    QCOMPARE(of542[0].name, QStringLiteral("Nauru"));
    QCOMPARE(of542[1].name, QStringLiteral("Fidżi"));
    QCOMPARE(countryTable.value(542).name, QStringLiteral("Nauru"));

    const QMultiMap<quint32, QString> india2 = countryTable.value(405).operators;
    QCOMPARE(india2.values(12), (QStringList{"Reliance Infocomm Ltd, Kolkata",
                                             "Reliance Infocomm Ltd, Andhra Pradesh"}));
}

void TestCountryTable::networkNamesTexts_data()
{
    columns<quint32, quint32, QString, QString>("mcc", "mnc", "country", "op");

    const auto row = [](const char *name, quint32 mcc, quint32 mnc, const QString &country,
                        const QString &op) { ::row(name, mcc, mnc, country, op); };
    const QString unknown = QStringLiteral("Nieznany");
    row("Poland 1", 260, 1, "Polska", "Plus / Polkomtel S.A.");
    row("trailing blank", 260, 22, "Polska", "Arcomm / Arcomm Sp. z o.o. ");
    row("Poland all", 260, 998, "Polska", "Wszystkie");
    row("Poland 35", 260, 35, "Polska", unknown);
    row("country 100", 100, 1, unknown, unknown);
    row("country 100 all", 100, 998, unknown, "Wszystkie");
    row("542 finds Nauru", 542, 2, "Nauru", "Digicel (Fiji) Ltd");
    row("542/1 of Fidżi", 542, 1, "Nauru", unknown);
    row("405/12 latest", 405, 12, "Indie(2)", "Reliance Infocomm Ltd, Kolkata");
    row("460/0", 460, 0, "Chiny(2)", "China Mobile");
    row("UTF-8", 991, 1, "Satelitarne (3)", "World’s Global Telecom");
    row("UK 234/10", 234, 10, "Wielka Brytania(2)", "Telefonica UK Limited");
    row("beyond 999", 4194303, 1023, unknown, unknown);
}

void TestCountryTable::networkNamesTexts()
{
    auto [mcc, mnc, country, op] =
        fetch<quint32, quint32, QString, QString>("mcc", "mnc", "country", "op");

    QString countryName = QStringLiteral("stale"), operatorName = QStringLiteral("stale");
    networkNames((mcc << 10) | mnc, countryName, operatorName);
    QCOMPARE(countryName, country);
    QCOMPARE(operatorName, op);
}

void TestCountryTable::countryNamesTranslatedOperatorsNot()
{
    FakeTranslator translator;
    QCoreApplication::installTranslator(&translator);
    countryTable.clear(); // the lookup fills an empty table
    QString country, op, unknownCountry, all;
    networkNames((260 << 10) | 1, country, op);
    networkNames((100 << 10) | 998, unknownCountry, all);
    const int filled = countryTable.size();
    QCoreApplication::removeTranslator(&translator);
    fillCountryTable();

    QCOMPARE(filled, 222);
    QCOMPARE(country, QStringLiteral("QObject:Polska"));
    QCOMPARE(op, QStringLiteral("Plus / Polkomtel S.A."));
    QCOMPARE(unknownCountry + '|' + all, QStringLiteral("QObject:Nieznany|QObject:Wszystkie"));
}

QTEST_GUILESS_MAIN(TestCountryTable)
#include "tst_countrytable.moc"
