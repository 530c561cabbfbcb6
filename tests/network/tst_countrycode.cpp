// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/countrycode.h"
#include "telecfg/network/countrytable.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

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

    // Runs steps on a field and its combo box: plain text is typed key by key over the field,
    // "=x" is set at once, "@x" picks the last row reading x, "#x" picks the row of code x.
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
                edit->selectAll(); // typing replaces the selection; nothing to type erases it
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

class TestCountryCode : public TestCase
{
    Q_OBJECT

private slots:
    void init() { fillCountryTable(); }

    void startsEmpty();
    void countryOperatorList_data();
    void countryOperatorList();
    void chains_data();
    void chains();
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
    QCOMPARE(f.cbCountry->currentText(), QStringLiteral("Nieznany"));
    QCOMPARE(f.cbCountry->currentData(), QVariant(999));
    QCOMPARE(f.cbCountry->itemText(1), QStringLiteral("Afganistan (412)")); // Polish order
    QCOMPARE(f.operatorRows(), (QStringList{"Nieznany", "Wszystkie"}));
    QVERIFY(!f.cbOperator->isEnabled());
    QVERIFY(!f.pbOK->isEnabled());
}

void TestCountryCode::countryOperatorList_data()
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

void TestCountryCode::countryOperatorList()
{
    auto [step, rows, firstRows] = fetch<QString, int, QStringList>("step", "rows", "firstRows");

    Form f;
    Form::run(f.leCountry, f.cbCountry, {step});
    const QString code = step.right(3);
    QCOMPARE(f.cbCountry->currentIndex(), f.cbCountry->findData(code.toUInt()));
    QCOMPARE(f.leCountry->text(), code);
    const QStringList list = f.operatorRows();
    QCOMPARE(list.size(), rows);
    QCOMPARE(list.mid(0, firstRows.size()), firstRows);

    // A name held by two codes: its two rows twice over, one after the other. Deliberate.
    const QString t2 = QStringLiteral("(2) T-Mobile / PTC S.A.");
    const QString t34 = QStringLiteral("(34) T-Mobile / PTC S.A.");
    if (code == "260")
        QCOMPARE(list.mid(list.indexOf(t2), 4), (QStringList{t2, t34, t2, t34}));
    if (code == "311")
        QCOMPARE(list.filter(QStringLiteral(") Verizon Wireless")).size(), 1089);
}

void TestCountryCode::chains_data()
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
    // Row 0 takes 999, the country slot empties the field, and the empty text leaves 0.
    row("999 over known", {"#260", "=999"}, {}, "/", unknown, 999);
    row("unknown over known", {"#260", "123"}, {}, "123/", unknown, 999);
    row("known over unknown", {"123", "202"}, {}, "202/", unknown, 999);
    row("row 0 keeps typed", {"77", "#202", "@Nieznany"}, {}, "77/", unknown, 999);
}

void TestCountryCode::chains()
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

void TestCountryCode::presetAndResult_data()
{
    columns<quint32, QString, QString, quint32>("preset", "fields", "row", "result");

    const auto row = [](const char *name, quint32 mcc, quint32 mnc, const QString &fields,
                        const QString &text,
                        quint32 result) { ::row(name, (mcc << 10 | mnc), fields, text, result); };
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

void TestCountryCode::presetAndResult()
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

void TestCountryCode::modalUse()
{
    Form f;
    f.dialog.setNetwork((260u << 10) | 1);
    {
        ModalCatcher pickAndAccept([&](QWidget *modal) {
            QCOMPARE(modal, &f.dialog);
            Form::run(f.leOperator, f.cbOperator, {"@(6) Play / P4 Sp. z o.o."});
            QTest::mouseClick(f.pbOK, Qt::LeftButton);
        });
        QCOMPARE(f.dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(pickAndAccept.seen.value(0).title, QStringLiteral("Sieć komórkowa"));
    }
    QCOMPARE(f.dialog.networkId(), (260u << 10) | 6);

    auto *cancel = f.dialog.findChild<QPushButton *>(QStringLiteral("pbCancel"));
    ModalCatcher cancelIt([&](QWidget *) { QTest::mouseClick(cancel, Qt::LeftButton); });
    QCOMPARE(f.dialog.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(TestCountryCode)
#include "tst_countrycode.moc"
