#include "telecfg/dialogs/cmddialog.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/modalcatcher.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using Commands = QHash<int, QString>;
Q_DECLARE_METATYPE(Commands)

namespace {
QStringList debugLines;

void collectDebug(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg)
        debugLines.append(message);
}

QComboBox *commandBox(QWidget *dialog)
{
    return dialog->findChild<QComboBox *>(QStringLiteral("leCmd"));
}
} // namespace

class TestCmdDialog : public QObject
{
    Q_OBJECT

private slots:
    void form();
    void commands_data();
    void commands();
    void debugStream();
    void execByButtons_data();
    void execByButtons();
};

void TestCmdDialog::form()
{
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    Commands commands;
    CmdDialog dialog(nullptr, commands);
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(dialog.objectName(), QStringLiteral("CmdDialog"));
    QCOMPARE(dialog.size(), QSize(307, 144));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("[CmdDialog]Wykonaj zdalny rozkaz"));
    QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label"))->text(),
             QStringLiteral("[CmdDialog]Polecenie"));
    QCOMPARE(dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))->geometry(),
             QRect(-60, 100, 341, 32));
    QCOMPARE(dialog.findChild<QWidget *>(QStringLiteral("formLayoutWidget"))->geometry(),
             QRect(20, 20, 261, 71));
    QVERIFY(commandBox(&dialog)->isEditable());
    QCOMPARE(dialog.focusWidget(), commandBox(&dialog));
}

void TestCmdDialog::commands_data()
{
    QTest::addColumn<Commands>("commands");
    QTest::addColumn<QString>("items");      // "key:text" in the list's order
    QTest::addColumn<QStringList>("typing"); // what is typed, what getCmd returns

    const Commands reset{{1, "Reset 5"}, {2, "Get Speed"}, {4, "ab cd"}, {6, "Reset"}};
    const QString resetItems = QStringLiteral("1:Reset 5 2:Get Speed 4:ab cd 6:Reset ");
    const QStringList none{"", ""};
    QTest::newRow("gap, key 0") << Commands{{3, "c"}, {0, "a"}} << "0:a 3:c " << none;
    QTest::newRow("negative key") << Commands{{-4, "n"}, {5, "p"}} << "5:p " << none;
    QTest::newRow("largest key") << Commands{{INT_MAX, "m"}, {7, "g"}} << "7:g 2147483647:m "
                                 << none;
    QTest::newRow("case, spacing") << reset << resetItems << QStringList{"RESET   5", "Reset 5"};
    QTest::newRow("argument spacing") << reset << resetItems << QStringList{"ab c d", "ab cd"};
    QTest::newRow("extra argument") << reset << resetItems << QStringList{"reset 5 a", "reset 5 a"};
    QTest::newRow("argument case") << reset << resetItems << QStringList{"get speed", "get speed"};
    QTest::newRow("command alone") << reset << resetItems << QStringList{"reset", "Reset"};
    QTest::newRow("leading space") << reset << resetItems << QStringList{" Reset", " Reset"};
    QTest::newRow("no items") << Commands{} << QString() << QStringList{"RESET 5", "RESET 5"};
    QTest::newRow("first key wins") << Commands{{1, "Out 1"}, {2, "OUT 1"}} << "1:Out 1 2:OUT 1 "
                                    << QStringList{"out 1", "Out 1"};
    QTest::newRow("first key wins too") << Commands{{1, "OUT 1"}, {2, "Out 1"}}
                                        << "1:OUT 1 2:Out 1 " << QStringList{"out 1", "OUT 1"};
}

// The list offers the commands by ascending key, none selected; getCmd maps what is typed.
void TestCmdDialog::commands()
{
    QFETCH(Commands, commands);
    QFETCH(QString, items);
    QFETCH(QStringList, typing);

    CmdDialog dialog(nullptr, commands);
    QComboBox *box = commandBox(&dialog);
    QString shown;
    for (int i = 0; i < box->count(); ++i)
        shown += box->itemData(i).toString() + ':' + box->itemText(i) + ' ';
    QCOMPARE(shown, items);
    QCOMPARE(box->currentText(), QString());
    QTest::keyClicks(box->lineEdit(), typing[0]);
    QCOMPARE(box->currentText(), typing[0]);
    QCOMPARE(dialog.getCmd(), typing[1]);
}

// The keys, unsorted and sorted, and every edit go to the debug stream; getCmd stays quiet.
void TestCmdDialog::debugStream()
{
    debugLines.clear();
    const QtMessageHandler previous = qInstallMessageHandler(collectDebug);
    Commands commands{{3, "c"}, {1, "a"}, {2, "b"}};
    CmdDialog dialog(nullptr, commands);
    QTest::keyClicks(commandBox(&dialog)->lineEdit(), QStringLiteral("xy"));
    dialog.getCmd();
    qInstallMessageHandler(previous);

    QCOMPARE(debugLines.size(), 4);
    QStringList unsorted = debugLines.takeFirst().remove('(').remove(')').split(", ");
    std::sort(unsorted.begin(), unsorted.end());
    QCOMPARE(unsorted, QStringList({"1", "2", "3"}));
    QCOMPARE(debugLines, QStringList({"(1, 2, 3)", "\"x\"", "\"xy\""}));
}

void TestCmdDialog::execByButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("result");

    QTest::newRow("OK") << int(QDialogButtonBox::Ok) << int(QDialog::Accepted);
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel) << int(QDialog::Rejected);
    QTest::newRow("Enter in the list") << int(QDialogButtonBox::NoButton) << int(QDialog::Accepted);
}

void TestCmdDialog::execByButtons()
{
    QFETCH(int, button);
    QFETCH(int, result);

    Commands commands{{0, "Reset 5"}, {1, "Get Speed"}};
    CmdDialog dialog(nullptr, commands);
    ModalCatcher catcher([button](QWidget *modal) {
        QComboBox *box = commandBox(modal);
        box->setCurrentIndex(1);
        QTest::keyClicks(box->lineEdit(), QStringLiteral("  2"));
        auto *buttons = modal->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        if (button == QDialogButtonBox::NoButton)
            QTest::keyClick(box->lineEdit(), Qt::Key_Return);
        else
            QTest::mouseClick(buttons->button(QDialogButtonBox::StandardButton(button)),
                              Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(catcher.seen.size(), 1);
    QCOMPARE(dialog.getCmd(), QStringLiteral("Get Speed  2"));
}

QTEST_MAIN(TestCmdDialog)
#include "tst_cmddialog.moc"
