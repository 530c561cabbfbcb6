#include "telecfg/dialogs/dualinputdlg.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/modalcatcher.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

namespace {
const char separatorVariable[] = "TELECFG_TEST_DECIMAL_POINT";
} // namespace

class TestDualInputDlg : public QObject
{
    Q_OBJECT

private slots:
    void fields_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("withPoint");
        QTest::addColumn<bool>("withComma");

        const QString first = QStringLiteral("lineEdit");
        const QString second = QStringLiteral("lineEdit_2");
        QTest::newRow("2 dec: negative, point") << 2 << first << "-12.34" << true << false;
        QTest::newRow("2 dec: three after") << 2 << first << "12.345" << false << false;
        QTest::newRow("2 dec: comma") << 2 << first << "12,34" << false << true;
        QTest::newRow("0 dec: six digits") << 0 << first << "123456" << true << true;
        QTest::newRow("0 dec: seven digits") << 0 << first << "1234567" << false << false;
        QTest::newRow("0 dec: minus") << 0 << first << "-1" << false << false;
        QTest::newRow("second: seven digits") << 2 << second << "1234567" << false << false;
        QTest::newRow("second: point") << 2 << second << "1.5" << false << false;
    }

    void fields()
    {
        QFETCH(int, decimals);
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(bool, withPoint);
        QFETCH(bool, withComma);

        // Run by fieldsInOtherLocales in a child process, which says which separator it set.
        const QByteArray forced = qgetenv(separatorVariable);
        const QChar decimalPoint = QLocale::system().decimalPoint();
        if (!forced.isEmpty())
            QCOMPARE(decimalPoint, QChar::fromLatin1(forced.at(0)));

        DualInputDlg dialog(decimals);
        auto *edit = dialog.findChild<QLineEdit *>(field);
        QTest::keyClicks(edit, text);
        QCOMPARE(edit->text() == text && edit->hasAcceptableInput(),
                 decimalPoint == QLatin1Char('.') ? withPoint : withComma);
    }

    void fieldsInOtherLocales_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("decimalPoint");

        QTest::newRow("Polish: comma") << "pl_PL.UTF-8" << QStringLiteral(",");
        QTest::newRow("English: point") << "en_GB.UTF-8" << QStringLiteral(".");
    }

    void fieldsInOtherLocales()
    {
        QFETCH(QString, locale);
        QFETCH(QString, decimalPoint);

        if (qEnvironmentVariableIsSet(separatorVariable))
            QSKIP("already a child run");
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale);
        environment.insert(QString::fromLatin1(separatorVariable), decimalPoint);
        child.setProcessEnvironment(environment);
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("fields")});
        QVERIFY(child.waitForFinished(60000));
        QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0,
                 child.readAll().constData());
    }

    // The preset skips the validator and puts the cursor in the second field, which refuses
    // letters.
    void exec()
    {
        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        DualInputDlg dialog;
        QCoreApplication::removeTranslator(&translator);
        dialog.setLabels(QStringLiteral("Poziom"), QStringLiteral("Pojemność"));
        dialog.SetValue1(QStringLiteral("-1.25"));
        QStringList labels;
        ModalCatcher catcher([&labels](QWidget *modal) {
            for (const char *name : {"label", "label_2"})
                labels << modal->findChild<QLabel *>(name)->text();
            QTest::keyClicks(modal->focusWidget(), QStringLiteral("75x"));
            auto *box = modal->findChild<QDialogButtonBox *>();
            QTest::mouseClick(box->button(QDialogButtonBox::Ok), Qt::LeftButton);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(catcher.seen.value(0).title, QStringLiteral("[DualInputDlg]Dialog"));
        QCOMPARE(labels, QStringList({"Poziom", "Pojemność"}));
        QCOMPARE(dialog.getValue1(), QStringLiteral("-1.25"));
        QCOMPARE(dialog.getValue2(), QStringLiteral("75"));
    }
};

QTEST_MAIN(TestDualInputDlg)
#include "tst_dualinputdlg.moc"
