#include "telecfg/network/countrytable.h"

#include <QFile>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

namespace {

struct DataRow
{
    quint32 mcc;
    QString country;
    quint32 mnc;
    QString name;
};

struct DataEntry
{
    quint32 mcc;
    QString name;
    QList<DataRow> rows;
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
        line.chop(line.endsWith('\n') ? 1 : 0);
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QList<QByteArray> f = line.split('\t');
        if (f.size() != 4)
            return {};
        const DataRow row{f[0].toUInt(), QString::fromUtf8(f[1]), f[2].toUInt(),
                          QString::fromUtf8(f[3])};
        if (entries.isEmpty() || entries.last().mcc != row.mcc ||
            entries.last().name != row.country)
            entries.append({row.mcc, row.country, {}});
        entries.last().rows.append(row);
    }
    return entries;
}

// A multi-map view of a table level, for the lookups of all values of a key.
template <class K, class V> QMultiMap<K, V> multi(const QMap<K, V> &map)
{
    return map;
}

using Flat = QList<QPair<quint32, QString>>;

// The whole table in iteration order, one line per operator row.
Flat flatten()
{
    Flat flat;
    for (auto c = countryTable.cbegin(); c != countryTable.cend(); ++c)
        for (auto o = c->operators.cbegin(); o != c->operators.cend(); ++o)
            flat.append({(c.key() << 10) | o.key(), c->name + QLatin1Char('\t') + *o});
    return flat;
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

class TestCountryTable : public QObject
{
    Q_OBJECT

private slots:
    void init() { fillCountryTable(); }

    void tableMatchesData();
    void duplicatesKeepInsertionTieBreak();
    void networkNamesTexts_data();
    void networkNamesTexts();
    void networkNamesFillsEmptyTable();
    void secondFillGivesSameTable();
    void countryNamesTranslatedOperatorsNot();
};

void TestCountryTable::tableMatchesData()
{
    const QList<DataEntry> data = readData();
    QCOMPARE(data.size(), 222);
    int rows = 0;
    for (const DataEntry &e : data)
        rows += e.rows.size();
    QCOMPARE(rows, 2030);

    QCOMPARE(countryTable.size(), 222);
    QCOMPARE(multi(countryTable).uniqueKeys().size(), 221);

    int total = 0;
    for (const DataEntry &e : data) {
        // Entries of one code are found latest first.
        const QList<CountryEntry> found = multi(countryTable).values(e.mcc);
        const auto it = std::find_if(found.cbegin(), found.cend(),
                                     [&](const CountryEntry &c) { return c.name == e.name; });
        QVERIFY2(it != found.cend(), qPrintable(QString::number(e.mcc) + ' ' + e.name));

        // Within an entry: ascending network code, and within a code the latest row first.
        QList<DataRow> expected = e.rows;
        std::reverse(expected.begin(), expected.end());
        std::stable_sort(expected.begin(), expected.end(),
                         [](const DataRow &a, const DataRow &b) { return a.mnc < b.mnc; });
        QList<QPair<quint32, QString>> actual, wanted;
        for (auto o = it->operators.cbegin(); o != it->operators.cend(); ++o)
            actual.append({o.key(), *o});
        for (const DataRow &r : expected)
            wanted.append({r.mnc, r.name});
        QCOMPARE(actual, wanted);
        total += actual.size();
    }
    QCOMPARE(total, 2030);
}

void TestCountryTable::duplicatesKeepInsertionTieBreak()
{
    const QList<CountryEntry> of542 = multi(countryTable).values(542);
    QCOMPARE(of542.size(), 2);
    QCOMPARE(of542[0].name, QStringLiteral("Nauru"));
    QCOMPARE(of542[1].name, QStringLiteral("Fidżi"));
    QCOMPARE(countryTable.value(542).name, QStringLiteral("Nauru"));
    QCOMPARE(countryTable.value(542).operators.keys(), QList<quint32>{2});
    QCOMPARE(of542[1].operators.keys(), (QList<quint32>{1, 2, 3}));

    const QMap<quint32, QString> &india2 = countryTable.constFind(405)->operators;
    QCOMPARE(multi(india2).values(12),
             (QList<QString>{QStringLiteral("Reliance Infocomm Ltd, Kolkata"),
                             QStringLiteral("Reliance Infocomm Ltd, Andhra Pradesh")}));
    QCOMPARE(india2.value(12), QStringLiteral("Reliance Infocomm Ltd, Kolkata"));
}

void TestCountryTable::networkNamesTexts_data()
{
    QTest::addColumn<quint32>("mcc");
    QTest::addColumn<quint32>("mnc");
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("op");

    const QString unknown = QStringLiteral("Nieznany");
    const QString all = QStringLiteral("Wszystkie");
    QTest::newRow("Poland 1") << 260u << 1u << "Polska"
                              << "Plus / Polkomtel S.A.";
    QTest::newRow("Poland 22, trailing blank") << 260u << 22u << "Polska"
                                               << "Arcomm / Arcomm Sp. z o.o. ";
    QTest::newRow("Poland 34") << 260u << 34u << "Polska"
                               << "T-Mobile / PTC S.A.";
    QTest::newRow("Poland all") << 260u << 998u << "Polska" << all;
    QTest::newRow("Poland unknown code") << 260u << 999u << "Polska" << unknown;
    QTest::newRow("Poland 35") << 260u << 35u << "Polska" << unknown;
    QTest::newRow("country 100") << 100u << 1u << unknown << unknown;
    QTest::newRow("country 100, all") << 100u << 998u << unknown << all;
    QTest::newRow("542 finds Nauru") << 542u << 2u << "Nauru"
                                     << "Digicel (Fiji) Ltd";
    QTest::newRow("542/1 only under Fidżi") << 542u << 1u << "Nauru" << unknown;
    QTest::newRow("405/12 latest") << 405u << 12u << "Indie(2)"
                                   << "Reliance Infocomm Ltd, Kolkata";
    QTest::newRow("460 network 0") << 460u << 0u << "Chiny(2)"
                                   << "China Mobile";
    QTest::newRow("id 0") << 0u << 0u << unknown << unknown;
    QTest::newRow("Hungary, UTF-8 country") << 216u << 1u << "Węgry"
                                            << "Telenor Hungary Ltd";
    QTest::newRow("Hungary 99, UTF-8 operator") << 216u << 99u << "Węgry"
                                                << "MÁV Co.";
    QTest::newRow("991, UTF-8 operator") << 991u << 1u << "Satelitarne (3)"
                                         << "World’s Global Telecom";
    QTest::newRow("901/88") << 901u << 88u << "Satelitarne (1)"
                            << "UN Office for the Coordination of Humanitarian Affairs (OCHA)";
    QTest::newRow("UK lower code, higher number") << 234u << 10u << "Wielka Brytania(2)"
                                                  << "Telefonica UK Limited";
    QTest::newRow("country bits beyond 999") << 4194303u << 1023u << unknown << unknown;
}

void TestCountryTable::networkNamesTexts()
{
    QFETCH(quint32, mcc);
    QFETCH(quint32, mnc);
    QFETCH(QString, country);
    QFETCH(QString, op);

    QString countryName = QStringLiteral("stale"), operatorName = QStringLiteral("stale");
    networkNames((mcc << 10) | mnc, countryName, operatorName);
    QCOMPARE(countryName, country);
    QCOMPARE(operatorName, op);
}

void TestCountryTable::networkNamesFillsEmptyTable()
{
    countryTable.clear();
    QString country, op;
    networkNames(266241, country, op);
    QCOMPARE(country, QStringLiteral("Polska"));
    QCOMPARE(op, QStringLiteral("Plus / Polkomtel S.A."));
    QCOMPARE(countryTable.size(), 222);
}

void TestCountryTable::secondFillGivesSameTable()
{
    const Flat first = flatten();
    QCOMPARE(first.size(), 2030);
    fillCountryTable();
    QCOMPARE(flatten(), first);
    QCOMPARE(countryTable.size(), 222);
}

void TestCountryTable::countryNamesTranslatedOperatorsNot()
{
    FakeTranslator translator;
    QCoreApplication::installTranslator(&translator);
    fillCountryTable();
    QString country, op;
    networkNames((260 << 10) | 1, country, op);
    const QString unknownCountry = [] {
        QString c, o;
        networkNames((100 << 10) | 998, c, o);
        return c + '|' + o;
    }();
    QCoreApplication::removeTranslator(&translator);
    fillCountryTable();

    QCOMPARE(country, QStringLiteral("QObject:Polska"));
    QCOMPARE(op, QStringLiteral("Plus / Polkomtel S.A."));
    QCOMPARE(unknownCountry, QStringLiteral("QObject:Nieznany|QObject:Wszystkie"));
}

QTEST_GUILESS_MAIN(TestCountryTable)
#include "tst_countrytable.moc"
