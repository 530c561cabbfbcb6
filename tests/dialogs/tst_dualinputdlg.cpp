// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/dualinputdlg.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

namespace {
const char separatorVariable[] = "TELECFG_TEST_DECIMAL_POINT";
} // namespace

class TestDualInputDlg : public TestCase
{
    Q_OBJECT

private slots:
    void fields_data()
    {
        // field: first or second
        // accepts: with which decimal separator it is taken
        columns<int, QString, int, QString>("field", "text", "decimals", "accepts");

        row("2 dec: negative, point", 1, "-12.34", 2, ".");
        row("2 dec: three after", 1, "12.345", 2, "");
        row("2 dec: comma", 1, "12,34", 2, ",");
        row("0 dec: six digits", 1, "123456", 0, ".,");
        row("0 dec: seven digits", 1, "1234567", 0, "");
        row("0 dec: minus", 1, "-1", 0, "");
        row("second: seven digits", 2, "1234567", 2, "");
    }

    void fields()
    {
        auto [decimals, field, text, accepts] =
            fetch<int, int, QString, QString>("decimals", "field", "text", "accepts");

        // Run by fieldsInOtherLocales in a child process, which says which separator it set.
        const QByteArray forced = qgetenv(separatorVariable);
        const QString decimalPoint = QLocale::system().decimalPoint();
        if (!forced.isEmpty())
            QCOMPARE(decimalPoint, QString(QChar::fromLatin1(forced.at(0))));

        DualInputDlg dialog(decimals);
        auto *edit = dialog.findChild<QLineEdit *>(field == 1 ? "lineEdit" : "lineEdit_2");
        QTest::keyClicks(edit, text);
        QCOMPARE(edit->text() == text && edit->hasAcceptableInput(),
                 accepts.contains(decimalPoint));
    }

    void fieldsInOtherLocales_data()
    {
        columns<QString, QString>("locale", "decimalPoint");

        row("Polish: comma", "pl_PL.UTF-8", QStringLiteral(","));
        row("English: point", "en_GB.UTF-8", QStringLiteral("."));
    }

    void fieldsInOtherLocales()
    {
        auto [locale, decimalPoint] = fetch<QString, QString>("locale", "decimalPoint");

        if (qEnvironmentVariableIsSet(separatorVariable))
            QSKIP("already a child run");
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale);
        environment.insert(QString::fromLatin1(separatorVariable), decimalPoint);
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("fields")});
        QVERIFY(child.waitForFinished(60000));
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0,
                 child.readAllStandardOutput().constData());
    }

    // The preset skips the validator and puts the cursor in the second field, which refuses
    // letters.
    void exec()
    {
        DualInputDlg dialog;
        dialog.SetValue1(QStringLiteral("-1.25"));
        ModalCatcher catcher([](QWidget *modal) {
            QTest::keyClicks(modal->focusWidget(), QStringLiteral("75x"));
            auto *box = modal->findChild<QDialogButtonBox *>();
            QTest::mouseClick(box->button(QDialogButtonBox::Ok), Qt::LeftButton);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.getValue1(), QStringLiteral("-1.25"));
        QCOMPARE(dialog.getValue2(), QStringLiteral("75"));
    }
};

QTEST_MAIN(TestDualInputDlg)
#include "tst_dualinputdlg.moc"
