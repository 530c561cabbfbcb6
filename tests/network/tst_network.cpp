// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/countrycode.h"
#include "telecfg/network/countrytable.h"
#include "telecfg/network/networkchooser.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
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

// The data file the table is generated from, grouped into entries as it is
// inserted.
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

// The dialog's widgets, reached by the object names the slots are bound to.
struct Form
{
    CountryCode dialog;
    QLineEdit *leCountry = dialog.findChild<QLineEdit *>(QStringLiteral("leCountry"));
    QLineEdit *leOperator = dialog.findChild<QLineEdit *>(QStringLiteral("leOperator"));
    QComboBox *cbCountry = dialog.findChild<QComboBox *>(QStringLiteral("cbCountry"));
    QComboBox *cbOperator = dialog.findChild<QComboBox *>(QStringLiteral("cbOperator"));
    QPushButton *pbOK = dialog.findChild<QPushButton *>(QStringLiteral("pbOK"));

    // Runs steps on a field and its combo box: plain text is typed key by key
    // over the field,
    // "=x" is set at once, "@x" picks the last row reading x, "#x" picks the row
    // of code x.
    static void run(QLineEdit *edit, QComboBox *box, const QStringList &steps)
    {
        for (const QString &step : steps) {
            int row = step.startsWith('#') ? box->findData(step.mid(1).toUInt()) : -1;
            for (int r = 0; step.startsWith('@') && r < box->count(); ++r)
                if (box->itemText(r) == step.mid(1))
                    row = r; // the last row of that text
            if (step.startsWith('@') || step.startsWith('#')) {
                QVERIFY2(row >= 0, qPrintable("no row " + step));
                box->setCurrentIndex(row);
            } else if (step.startsWith('=')) {
                edit->setText(step.mid(1));
            } else {
                edit->selectAll(); // typing replaces the selection; nothing to type
                                   // erases it
                if (step.isEmpty())
                    QTest::keyClick(edit, Qt::Key_Backspace);
                QTest::keyClicks(edit, step);
            }
        }
    }

    QStringList operatorRows() const
    {
        QStringList rows;
        for (int row = 0; row < cbOperator->count(); ++row)
            rows << cbOperator->itemText(row);
        return rows;
    }
};

} // namespace

class TestNetwork : public TestCase
{
    Q_OBJECT

private slots:
    void init() { fillCountryTable(); }

    void tableMatchesData()
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

    void duplicates()
    {
        // Of two entries of a code the later one is found first, and so is the
        // later operator.
        const QList<CountryEntry> of542 = Multi(countryTable).values(542);
        QCOMPARE(of542.size(), 2);
        QCOMPARE(of542[0].name, QStringLiteral("Nauru"));
        QCOMPARE(of542[1].name, QStringLiteral("Fidżi"));
        QCOMPARE(countryTable.value(542).name, QStringLiteral("Nauru"));

        const QMultiMap<quint32, QString> india2 = countryTable.value(405).operators;
        QCOMPARE(india2.values(12), (QStringList{"Reliance Infocomm Ltd, Kolkata",
                                                 "Reliance Infocomm Ltd, Andhra Pradesh"}));
    }

    void networkNamesTexts_data()
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

    void networkNamesTexts()
    {
        auto [mcc, mnc, country, op] =
            fetch<quint32, quint32, QString, QString>("mcc", "mnc", "country", "op");

        QString countryName = QStringLiteral("stale"), operatorName = QStringLiteral("stale");
        networkNames((mcc << 10) | mnc, countryName, operatorName);
        QCOMPARE(countryName, country);
        QCOMPARE(operatorName, op);
    }

    void countryNamesTranslatedOperatorsNot()
    {
        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        countryTable.clear(); // the lookup fills an empty table
        QString country, op, unknownCountry, all;
        networkNames((260 << 10) | 1, country, op);
        networkNames((100 << 10) | 998, unknownCountry, all);
        const int filled = countryTable.size();
        QCoreApplication::removeTranslator(&translator);
        fillCountryTable();

        QCOMPARE(filled, 222);
        QCOMPARE(country, QStringLiteral("[QObject]Polska"));
        QCOMPARE(op, QStringLiteral("Plus / Polkomtel S.A."));
        QCOMPARE(unknownCountry + '|' + all,
                 QStringLiteral("[QObject]Nieznany|[QObject]Wszystkie"));
    }

    void startsEmpty()
    {
        countryTable.clear();
        Form f;
        QCOMPARE(countryTable.size(), 222); // the constructor fills an empty table
        QCOMPARE(f.cbCountry->count(), 223);
        QCOMPARE(f.cbCountry->currentText(), QStringLiteral("Nieznany"));
        QCOMPARE(f.cbCountry->currentData(), QVariant(999));
        QCOMPARE(f.cbCountry->itemText(1),
                 QStringLiteral("Afganistan (412)")); // Polish order
        QCOMPARE(f.operatorRows(), (QStringList{"Nieznany", "Wszystkie"}));
        QVERIFY(!f.cbOperator->isEnabled());
        QVERIFY(!f.pbOK->isEnabled());
    }

    void countryOperatorList_data()
    {
        columns<QString, int, QStringList>("step", "rows", "firstRows");

        for (const char *how : {"", "#"}) {
            QTest::addRow("%s260", how)
                << how + QStringLiteral("260") << 41
                << QStringList{"Nieznany", "Wszystkie", "(17) Aero 2 / Aero 2 Sp. z o.o."};
            QTest::addRow("%s542", how)
                << how + QStringLiteral("542") << 3
                << QStringList{"Nieznany", "Wszystkie", "(2) Digicel (Fiji) Ltd"};
            QTest::addRow("%s311", how) << how + QStringLiteral("311") << 1216 << QStringList();
        }
    }

    void countryOperatorList()
    {
        auto [step, rows, firstRows] =
            fetch<QString, int, QStringList>("step", "rows", "firstRows");

        Form f;
        Form::run(f.leCountry, f.cbCountry, {step});
        const QString code = step.right(3);
        QCOMPARE(f.cbCountry->currentIndex(), f.cbCountry->findData(code.toUInt()));
        QCOMPARE(f.leCountry->text(), code);
        const QStringList list = f.operatorRows();
        QCOMPARE(list.size(), rows);
        QCOMPARE(list.mid(0, firstRows.size()), firstRows);

        // A name held by two codes: its two rows twice over, one after the other.
        // Deliberate.
        const QString t2 = QStringLiteral("(2) T-Mobile / PTC S.A.");
        const QString t34 = QStringLiteral("(34) T-Mobile / PTC S.A.");
        if (code == "260")
            QCOMPARE(list.mid(list.indexOf(t2), 4), (QStringList{t2, t34, t2, t34}));
        if (code == "311")
            QCOMPARE(list.filter(QStringLiteral(") Verizon Wireless")).size(), 1089);
    }

    void chains_data()
    {
        // fields: country field '/' network field
        // row: the network row shown
        // data: its code; the row is the first of that code
        columns<QStringList, QStringList, QString, QString, uint>("countrySteps", "operatorSteps",
                                                                  "fields", "row", "data");

        const auto row = [](const char *name, const QStringList &countrySteps,
                            const QStringList &operatorSteps, const QString &fields,
                            const QString &text, uint data) {
            ::row(name, countrySteps, operatorSteps, fields, text, data);
        };
        const QString unknown = QStringLiteral("Nieznany");
        const QString all = QStringLiteral("Wszystkie");
        const QString t34 = QStringLiteral("(34) T-Mobile / PTC S.A.");
        row("type known", {"260"}, {"1"}, "260/1", "(1) Plus / Polkomtel S.A.", 1);
        row("type repeated name", {"260"}, {"1", "34"}, "260/34", t34, 34);
        row("pick repeat gives way", {"260"}, {"@" + t34}, "260/34", t34, 34);
        row("pick all", {"260"}, {"1", "@Wszystkie"}, "260/*", all, 998);
        row("type 998", {"260"}, {"1", "998"}, "260/*", all, 998);
        row("type star", {"260"}, {"*"}, "260/*", all, 998);
        row("unknown code", {"260"}, {"1", "35"}, "260/35", unknown, 35);
        row("not a number", {"260"}, {"1", "=abc"}, "260/0", unknown, 0);
        row("paste 999", {"260"}, {"1", "=999"}, "260/", unknown, 999);
        row("pick unknown", {"260"}, {"1", "@Nieznany"}, "260/", unknown, 999);
        row("405/12 first by name", {"405"}, {"12"}, "405/12",
            "(12) Reliance Infocomm Ltd, Andhra Pradesh", 12);
        row("460/0", {"460"}, {"0"}, "460/0", "(0) China Mobile", 0);
        row("unknown country", {"123"}, {"1", "45"}, "123/45", unknown, 45);
        row("unknown country 998", {"123"}, {"998"}, "123/998", unknown, 998);
        row("country emptied", {"#260", ""}, {}, "0/", unknown, 999);
        row("country 999", {"999"}, {}, "999/", unknown, 999);
        // Row 0 takes 999, the country slot empties the field, and the empty text
        // leaves 0.
        row("999 over known", {"#260", "=999"}, {}, "/", unknown, 999);
        row("unknown over known", {"#260", "123"}, {}, "123/", unknown, 999);
        row("known over unknown", {"123", "202"}, {}, "202/", unknown, 999);
        row("row 0 keeps typed", {"77", "#202", "@Nieznany"}, {}, "77/", unknown, 999);
    }

    void chains()
    {
        auto [countrySteps, operatorSteps, fields, row, data] =
            fetch<QStringList, QStringList, QString, QString, uint>("countrySteps", "operatorSteps",
                                                                    "fields", "row", "data");

        Form f;
        Form::run(f.leCountry, f.cbCountry, countrySteps);
        Form::run(f.leOperator, f.cbOperator, operatorSteps);
        QCOMPARE(f.leCountry->text() + '/' + f.leOperator->text(), fields);
        QCOMPARE(f.cbOperator->currentText(), row);
        QCOMPARE(f.cbOperator->currentIndex(), f.cbOperator->findData(data));
        QCOMPARE(f.pbOK->isEnabled(), !fields.startsWith('/') && !fields.endsWith('/'));
        const bool known = countryTable.contains(f.leCountry->text().toUInt());
        QCOMPARE(f.cbCountry->currentIndex() != 0, known);
        QCOMPARE(f.cbOperator->isEnabled(), known);
    }

    void presetAndResult_data()
    {
        columns<quint32, QString, QString, quint32>("preset", "fields", "row", "result");

        const auto row = [](const char *name, quint32 mcc, quint32 mnc, const QString &fields,
                            const QString &text, quint32 result) {
            ::row(name, (mcc << 10 | mnc), fields, text, result);
        };
        const QString unknown = QStringLiteral("Nieznany");
        row("Poland 3", 260, 3, "260/3", "(3) Orange / PTK Centertel Sp. z o.o.", 260 << 10 | 3);
        row("all", 260, 998, "260/*", "Wszystkie", 260 << 10 | 998);
        row("unknown op", 260, 999, "260/", unknown, 260 << 10 | 999);
        row("unknown country", 123, 45, "123/45", unknown, 123 << 10 | 45);
        // Emptying the field over a known country reads 0, as typing would.
        row("country 4000", 4000, 1, "0/1", unknown, 1);
        row("network 1000", 260, 1000, "260/", unknown, 260 << 10 | 999);
        row("country 999", 999, 1, "/1", unknown, 1);
    }

    void presetAndResult()
    {
        auto [preset, fields, row, result] =
            fetch<quint32, QString, QString, quint32>("preset", "fields", "row", "result");

        Form f;
        f.dialog.setNetwork((202u << 10) | 1); // a preset over an earlier one
        f.dialog.setNetwork(preset);
        QCOMPARE(f.leCountry->text() + '/' + f.leOperator->text(), fields);
        QCOMPARE(f.cbOperator->currentText(), row);
        QCOMPARE(f.dialog.networkId(), result);
    }

    void choose_data()
    {
        // operatorText: typed over the operator field; null = untouched
        // result: -1: nothing
        columns<quint32, QString, QString, QString, qint64>("preset", "button", "operatorText",
                                                            "shownCountry", "result");

        row("preset kept", ((260u << 10) | 1), "pbOK", QString(), "260", qint64((260u << 10) | 1));
        row("operator typed", ((260u << 10) | 1), "pbOK", "6", "260", qint64((260u << 10) | 6));
        row("every operator", ((262u << 10) | 998), "pbOK", QString(), "262",
            qint64((262u << 10) | 998));
        row("cancel", ((260u << 10) | 1), "pbCancel", "6", "260", qint64(-1));
        row("no preset", 0u, "pbCancel", QString(), "", qint64(-1));
    }

    void choose()
    {
        auto [preset, button, operatorText, shownCountry, result] =
            fetch<quint32, QString, QString, QString, qint64>("preset", "button", "operatorText",
                                                              "shownCountry", "result");
        QWidget parent;
        QString country;
        ModalCatcher user([&, button = button, operatorText = operatorText](QWidget *modal) {
            country = modal->findChild<QLineEdit *>(QStringLiteral("leCountry"))->text();
            if (!operatorText.isNull()) {
                auto *field = modal->findChild<QLineEdit *>(QStringLiteral("leOperator"));
                field->selectAll();
                QTest::keyClicks(field, operatorText);
            }
            QTest::mouseClick(modal->findChild<QPushButton *>(button), Qt::LeftButton);
        });
        const std::optional<quint32> chosen = chooseMobileNetwork(&parent, preset);
        QCOMPARE(user.seen.value(0).title, QStringLiteral("Sieć komórkowa"));
        QCOMPARE(country, shownCountry);
        QCOMPARE(chosen.has_value(), result >= 0);
        if (chosen)
            QCOMPARE(qint64(*chosen), result);
    }
};

QTEST_MAIN(TestNetwork)
#include "tst_network.moc"
