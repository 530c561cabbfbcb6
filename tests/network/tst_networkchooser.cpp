// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/network/networkchooser.h"
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
    QTest::addColumn<quint32>("preset");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("operatorText"); // typed over the operator field; null = untouched
    QTest::addColumn<QString>("shownCountry");
    QTest::addColumn<qint64>("result"); // -1: nothing

    QTest::newRow("preset kept") << ((260u << 10) | 1) << "pbOK" << QString() << "260"
                                 << qint64((260u << 10) | 1);
    QTest::newRow("operator typed") << ((260u << 10) | 1) << "pbOK"
                                    << "6"
                                    << "260" << qint64((260u << 10) | 6);
    QTest::newRow("every operator")
        << ((262u << 10) | 998) << "pbOK" << QString() << "262" << qint64((262u << 10) | 998);
    QTest::newRow("cancel") << ((260u << 10) | 1) << "pbCancel"
                            << "6"
                            << "260" << qint64(-1);
    QTest::newRow("no preset") << 0u << "pbCancel" << QString() << "" << qint64(-1);
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
