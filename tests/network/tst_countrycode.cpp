#include "telecfg/network/countrycode.h"
#include "telecfg/network/countrytable.h"
#include "tests/support/modalcatcher.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

// The dialog's widgets, reached by the object names the slots are bound to.
struct Form
{
    CountryCode dialog;
    QLineEdit *leCountry = dialog.findChild<QLineEdit *>(QStringLiteral("leCountry"));
    QLineEdit *leOperator = dialog.findChild<QLineEdit *>(QStringLiteral("leOperator"));
    QComboBox *cbCountry = dialog.findChild<QComboBox *>(QStringLiteral("cbCountry"));
    QComboBox *cbOperator = dialog.findChild<QComboBox *>(QStringLiteral("cbOperator"));
    QPushButton *pbOK = dialog.findChild<QPushButton *>(QStringLiteral("pbOK"));
    QPushButton *pbCancel = dialog.findChild<QPushButton *>(QStringLiteral("pbCancel"));

    // Replaces the field's text key by key, as a user who selects all and types.
    static void type(QLineEdit *edit, const QString &text)
    {
        edit->selectAll();
        if (text.isEmpty())
            QTest::keyClick(edit, Qt::Key_Backspace);
        else
            QTest::keyClicks(edit, text);
    }
    // Picks the n-th row (from 0) that reads `text`.
    static void pick(QComboBox *box, const QString &text, int occurrence = 0)
    {
        for (int row = 0; row < box->count(); ++row)
            if (box->itemText(row) == text && occurrence-- == 0)
                return box->setCurrentIndex(row);
        QFAIL(qPrintable("no row " + text));
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

class TestCountryCode : public QObject
{
    Q_OBJECT

private slots:
    void init() { fillCountryTable(); }

    void startsEmpty();
    void countryOperatorList_data();
    void countryOperatorList();
    void operatorChains_data();
    void operatorChains();
    void countryFieldChains_data();
    void countryFieldChains();
    void slotsDoNotFillTable();
    void presetAndResult_data();
    void presetAndResult();
    void modalUse();
};

void TestCountryCode::startsEmpty()
{
    countryTable.clear();
    Form f;
    QCOMPARE(countryTable.size(), 222); // the constructor fills an empty table
    QCOMPARE(f.cbCountry->count(), 223);
    QCOMPARE(f.cbCountry->currentIndex(), 0);
    QCOMPARE(f.cbCountry->currentText(), QStringLiteral("Nieznany"));
    QCOMPARE(f.cbCountry->currentData(), QVariant(999));
    for (int row = 1; row < f.cbCountry->count(); ++row)
        QVERIFY(countryTable.contains(f.cbCountry->itemData(row).toUInt()));
    QCOMPARE(f.operatorRows(), (QStringList{"Nieznany", "Wszystkie"}));
    QVERIFY(!f.cbOperator->isEnabled());
    QVERIFY(f.leCountry->text().isEmpty());
    QVERIFY(f.leOperator->text().isEmpty());
    QVERIFY(!f.pbOK->isEnabled());
}

void TestCountryCode::countryOperatorList_data()
{
    QTest::addColumn<bool>("typed");
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QStringList>("firstRows");

    for (bool typed : {false, true}) {
        const char *how = typed ? "typed" : "picked";
        QTest::addRow("%s Poland", how)
            << typed << "260" << 41
            << QStringList{"Nieznany", "Wszystkie", "(17) Aero 2 / Aero 2 Sp. z o.o.",
                           "(18) AMD Telecom / AMD Telecom S.A"};
        QTest::addRow("%s 542", how)
            << typed << "542" << 3
            << QStringList{"Nieznany", "Wszystkie", "(2) Digicel (Fiji) Ltd"};
        QTest::addRow("%s 311", how)
            << typed << "311" << 1216 << QStringList{"Nieznany", "Wszystkie"};
    }
}

void TestCountryCode::countryOperatorList()
{
    QFETCH(bool, typed);
    QFETCH(QString, code);
    QFETCH(int, rows);
    QFETCH(QStringList, firstRows);

    Form f;
    if (typed)
        Form::type(f.leCountry, code);
    else
        f.cbCountry->setCurrentIndex(f.cbCountry->findData(code.toUInt()));

    QCOMPARE(f.cbCountry->currentIndex(), f.cbCountry->findData(code.toUInt()));
    QCOMPARE(f.leCountry->text(), code);
    QVERIFY(f.cbOperator->isEnabled());
    QCOMPARE(f.cbOperator->currentIndex(), 0);
    QVERIFY(f.leOperator->text().isEmpty());
    QVERIFY(!f.pbOK->isEnabled());
    const QStringList list = f.operatorRows();
    QCOMPARE(list.size(), rows);
    QCOMPARE(list.mid(0, firstRows.size()), firstRows);
    QCOMPARE(f.cbOperator->itemData(0), QVariant(999));
    QCOMPARE(f.cbOperator->itemData(1), QVariant(998));

    if (code == "260") {
        // A name held by two codes: its two rows twice over, one after the other.
        const QString t2 = QStringLiteral("(2) T-Mobile / PTC S.A.");
        const QString t34 = QStringLiteral("(34) T-Mobile / PTC S.A.");
        const int first = list.indexOf(t2);
        QCOMPARE(list.mid(first, 4), (QStringList{t2, t34, t2, t34}));
        QCOMPARE(list.count(QStringLiteral("(13) Sferia / Sferia S.A.")), 2);
        QCOMPARE(list.count(QStringLiteral("(10) Sferia / Sferia S.A")), 1);
    }
    if (code == "311")
        QCOMPARE(list.filter(QStringLiteral(") Verizon Wireless")).size(), 1089);
}

void TestCountryCode::operatorChains_data()
{
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("from");   // network code typed first ("" stays at row 0)
    QTest::addColumn<QString>("action"); // type, paste (setText at once) or pick
    QTest::addColumn<QString>("arg");
    QTest::addColumn<int>("occurrence");
    QTest::addColumn<QString>("row");
    QTest::addColumn<uint>("data");
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("ok");

    const QString unknown = QStringLiteral("Nieznany");
    const QString tMobile34 = QStringLiteral("(34) T-Mobile / PTC S.A.");
    QTest::newRow("type known") << "260"
                                << ""
                                << "type"
                                << "1" << 0 << "(1) Plus / Polkomtel S.A." << 1u << "1" << true;
    QTest::newRow("type repeated name") << "260"
                                        << "1"
                                        << "type"
                                        << "34" << 0 << tMobile34 << 34u << "34" << true;
    QTest::newRow("pick repeat gives way")
        << "260"
        << ""
        << "pick" << tMobile34 << 1 << tMobile34 << 34u << "34" << true;
    QTest::newRow("pick all") << "260"
                              << "1"
                              << "pick"
                              << "Wszystkie" << 0 << "Wszystkie" << 998u << "*" << true;
    QTest::newRow("type 998") << "260"
                              << "1"
                              << "type"
                              << "998" << 0 << "Wszystkie" << 998u << "*" << true;
    QTest::newRow("type star") << "260"
                               << ""
                               << "type"
                               << "*" << 0 << "Wszystkie" << 998u << "*" << true;
    QTest::newRow("unknown code") << "260"
                                  << "1"
                                  << "type"
                                  << "35" << 0 << unknown << 35u << "35" << true;
    QTest::newRow("not a number at row 0") << "260"
                                           << ""
                                           << "type"
                                           << "abc" << 0 << unknown << 0u << "abc" << true;
    QTest::newRow("not a number over a row") << "260"
                                             << "1"
                                             << "paste"
                                             << "abc" << 0 << unknown << 0u << "0" << true;
    QTest::newRow("paste 999") << "260"
                               << "1"
                               << "paste"
                               << "999" << 0 << unknown << 999u << "" << false;
    QTest::newRow("emptied") << "260"
                             << "1"
                             << "type"
                             << "" << 0 << unknown << 999u << "" << false;
    QTest::newRow("pick unknown") << "260"
                                  << "1"
                                  << "pick" << unknown << 0 << unknown << 999u << "" << false;
    QTest::newRow("405/12 first by name")
        << "405"
        << ""
        << "type"
        << "12" << 0 << "(12) Reliance Infocomm Ltd, Andhra Pradesh" << 12u << "12" << true;
    QTest::newRow("460 network 0") << "460"
                                   << ""
                                   << "type"
                                   << "0" << 0 << "(0) China Mobile" << 0u << "0" << true;
    QTest::newRow("unknown country") << "123"
                                     << "1"
                                     << "type"
                                     << "45" << 0 << unknown << 45u << "45" << true;
    QTest::newRow("unknown country, 998") << "123"
                                          << ""
                                          << "type"
                                          << "998" << 0 << unknown << 998u << "998" << true;
    QTest::newRow("unknown country, star") << "123"
                                           << ""
                                           << "type"
                                           << "*" << 0 << unknown << 998u << "*" << true;
}

void TestCountryCode::operatorChains()
{
    QFETCH(QString, country);
    QFETCH(QString, from);
    QFETCH(QString, action);
    QFETCH(QString, arg);
    QFETCH(int, occurrence);
    QFETCH(QString, row);
    QFETCH(uint, data);
    QFETCH(QString, field);
    QFETCH(bool, ok);

    Form f;
    Form::type(f.leCountry, country);
    Form::type(f.leOperator, from);
    if (action == "type")
        Form::type(f.leOperator, arg);
    else if (action == "paste")
        f.leOperator->setText(arg);
    else
        Form::pick(f.cbOperator, arg, occurrence);

    QCOMPARE(f.cbOperator->currentText(), row);
    QCOMPARE(f.cbOperator->currentIndex(), f.cbOperator->findData(data)); // first of its code
    QCOMPARE(f.cbOperator->currentData().toUInt(), data);
    QCOMPARE(f.leOperator->text(), field);
    QCOMPARE(f.pbOK->isEnabled(), ok);
    QCOMPARE(f.cbOperator->isEnabled(), countryTable.contains(country.toUInt()));
    QCOMPARE(f.leCountry->text(), country);
}

void TestCountryCode::countryFieldChains_data()
{
    // Steps: plain text is typed key by key, "=x" is set at once, "@x" picks the row of code
    // x, "#" picks row 0.
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("row0Data");
    QTest::addColumn<bool>("unknownRow");

    QTest::newRow("emptied from known country") << QStringList{"@260", ""} << "0" << 0 << true;
    QTest::newRow("emptied at row 0") << QStringList{""} << "" << 999 << true;
    QTest::newRow("999 key by key at row 0") << QStringList{"999"} << "999" << 999 << true;
    // Row 0 takes 999, the country slot empties the field, and the empty text leaves 0.
    QTest::newRow("999 over a known code") << QStringList{"@260", "=999"} << "" << 0 << true;
    QTest::newRow("unknown code kept") << QStringList{"@260", "123"} << "123" << 123 << true;
    QTest::newRow("known code typed") << QStringList{"123", "202"} << "202" << 20 << false;
    QTest::newRow("row 0 after emptying reads 0")
        << QStringList{"@260", "", "@202", "#"} << "0" << 0 << true;
    QTest::newRow("row 0 keeps a typed code")
        << QStringList{"77", "@202", "#"} << "77" << 77 << true;
}

void TestCountryCode::countryFieldChains()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, field);
    QFETCH(int, row0Data);
    QFETCH(bool, unknownRow);

    Form f;
    for (const QString &step : steps) {
        if (step == "#")
            f.cbCountry->setCurrentIndex(0);
        else if (step.startsWith('@'))
            f.cbCountry->setCurrentIndex(f.cbCountry->findData(step.mid(1).toUInt()));
        else if (step.startsWith('='))
            f.leCountry->setText(step.mid(1));
        else
            Form::type(f.leCountry, step);
    }

    QCOMPARE(f.leCountry->text(), field);
    QCOMPARE(f.cbCountry->itemData(0).toInt(), row0Data);
    QCOMPARE(f.cbCountry->currentIndex() == 0, unknownRow);
    QCOMPARE(f.cbOperator->isEnabled(), !unknownRow);
    if (unknownRow)
        QCOMPARE(f.cbOperator->count(), 2);
    QVERIFY(!f.pbOK->isEnabled()); // no operator yet
}

void TestCountryCode::slotsDoNotFillTable()
{
    Form f;
    countryTable.clear();
    Form::type(f.leCountry, QStringLiteral("260"));
    QVERIFY(countryTable.isEmpty());
    QCOMPARE(f.cbOperator->count(), 2);
    QCOMPARE(f.leCountry->text(), QStringLiteral("260"));
}

void TestCountryCode::presetAndResult_data()
{
    QTest::addColumn<quint32>("preset");
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("op");
    QTest::addColumn<QString>("row");
    QTest::addColumn<quint32>("result");

    QTest::newRow("Poland 3") << (260u << 10 | 3) << "260"
                              << "3"
                              << "(3) Orange / PTK Centertel Sp. z o.o." << (260u << 10 | 3);
    QTest::newRow("all of Poland") << (260u << 10 | 998) << "260"
                                   << "*"
                                   << "Wszystkie" << (260u << 10 | 998);
    QTest::newRow("unknown operator") << (260u << 10 | 999) << "260"
                                      << ""
                                      << "Nieznany" << (260u << 10 | 999);
    QTest::newRow("unknown country") << (123u << 10 | 45) << "123"
                                     << "45"
                                     << "Nieznany" << (123u << 10 | 45);
    // Emptying the field over a known country reads 0, as typing would.
    QTest::newRow("country beyond three digits") << (4000u << 10 | 1) << "0"
                                                 << "1"
                                                 << "Nieznany" << 1u;
    QTest::newRow("network 1000") << (260u << 10 | 1000) << "260"
                                  << ""
                                  << "Nieznany" << (260u << 10 | 999);
}

void TestCountryCode::presetAndResult()
{
    QFETCH(quint32, preset);
    QFETCH(QString, country);
    QFETCH(QString, op);
    QFETCH(QString, row);
    QFETCH(quint32, result);

    Form f;
    f.dialog.setNetwork((202u << 10) | 1); // a preset over an earlier one
    f.dialog.setNetwork(preset);
    QCOMPARE(f.leCountry->text(), country);
    QCOMPARE(f.leOperator->text(), op);
    QCOMPARE(f.cbOperator->currentText(), row);
    QCOMPARE(f.dialog.networkId(), result);
}

void TestCountryCode::modalUse()
{
    Form f;
    f.dialog.setNetwork((260u << 10) | 1);
    {
        ModalCatcher pickAndAccept([&](QWidget *modal) {
            QCOMPARE(modal, &f.dialog);
            Form::pick(f.cbOperator, QStringLiteral("(6) Play / P4 Sp. z o.o."));
            QTest::mouseClick(f.pbOK, Qt::LeftButton);
        });
        QCOMPARE(f.dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(pickAndAccept.seen.value(0).title, QStringLiteral("Sieć komórkowa"));
    }
    QCOMPARE(f.dialog.networkId(), (260u << 10) | 6);

    ModalCatcher cancel([&](QWidget *) { QTest::mouseClick(f.pbCancel, Qt::LeftButton); });
    QCOMPARE(f.dialog.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(TestCountryCode)
#include "tst_countrycode.moc"
