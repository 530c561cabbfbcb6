// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/networkchooser.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class TestNetworkChooser : public QObject
{
    Q_OBJECT

private slots:
    void choose_data();
    void choose();
};

void TestNetworkChooser::choose_data()
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

void TestNetworkChooser::choose()
{
    QFETCH(quint32, preset);
    QFETCH(QString, button);
    QFETCH(QString, operatorText);
    QFETCH(QString, shownCountry);
    QFETCH(qint64, result);
    QWidget parent;
    QString country;
    ModalCatcher user([&](QWidget *modal) {
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

QTEST_MAIN(TestNetworkChooser)
#include "tst_networkchooser.moc"
