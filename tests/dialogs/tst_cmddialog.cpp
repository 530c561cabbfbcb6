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

// Captures the debug stream for as long as it lives.
class DebugCapture
{
public:
    DebugCapture()
    {
        debugLines.clear();
        previous = qInstallMessageHandler(collectDebug);
    }
    ~DebugCapture() { qInstallMessageHandler(previous); }
    DebugCapture(const DebugCapture &) = delete;
    DebugCapture &operator=(const DebugCapture &) = delete;

private:
    QtMessageHandler previous;
};

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
    void items_data();
    void items();
    void typedCommand_data();
    void typedCommand();
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

void TestCmdDialog::items_data()
{
    QTest::addColumn<Commands>("commands");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QVariantList>("keys");

    QTest::newRow("gap at 2") << Commands{{3, "c"}, {1, "a"}} << QStringList{"a", "c"}
                              << QVariantList{1, 3};
    QTest::newRow("key 0 first") << Commands{{2, "b"}, {0, "z"}} << QStringList{"z", "b"}
                                 << QVariantList{0, 2};
    QTest::newRow("negative keys left out")
        << Commands{{-4, "n"}, {5, "p"}} << QStringList{"p"} << QVariantList{5};
    QTest::newRow("only negative keys") << Commands{{-1, "n"}} << QStringList{} << QVariantList{};
    QTest::newRow("largest key") << Commands{{INT_MAX, "max"}, {7, "g"}} << QStringList{"g", "max"}
                                 << QVariantList{7, INT_MAX};
    QTest::newRow("empty") << Commands{} << QStringList{} << QVariantList{};
}

void TestCmdDialog::items()
{
    QFETCH(Commands, commands);
    QFETCH(QStringList, texts);
    QFETCH(QVariantList, keys);

    CmdDialog dialog(nullptr, commands);
    QComboBox *box = commandBox(&dialog);
    QStringList shownTexts;
    QVariantList shownKeys;
    for (int i = 0; i < box->count(); ++i) {
        shownTexts << box->itemText(i);
        shownKeys << box->itemData(i);
    }
    QCOMPARE(shownTexts, texts);
    QCOMPARE(shownKeys, keys);
    QCOMPARE(box->currentIndex(), -1);
    QCOMPARE(box->currentText(), QString());
}

void TestCmdDialog::typedCommand_data()
{
    QTest::addColumn<Commands>("commands");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");

    const Commands reset{{1, "Reset 5"}, {2, "Get Speed"}, {4, "ab cd"}, {6, "Reset"}};
    QTest::newRow("command case and spacing") << reset << "RESET   5"
                                              << "Reset 5";
    QTest::newRow("argument spacing") << reset << "ab c d"
                                      << "ab cd";
    QTest::newRow("extra argument") << reset << "reset 5 a"
                                    << "reset 5 a";
    QTest::newRow("argument case counts") << reset << "get speed"
                                          << "get speed";
    QTest::newRow("command alone") << reset << "reset"
                                   << "Reset";
    QTest::newRow("leading space") << reset << " Reset"
                                   << " Reset";
    QTest::newRow("nothing typed") << reset << ""
                                   << "";
    QTest::newRow("no items") << Commands{} << "RESET 5"
                              << "RESET 5";
    QTest::newRow("first key wins") << Commands{{1, "Out 1"}, {2, "OUT 1"}} << "out 1"
                                    << "Out 1";
    QTest::newRow("first key wins, reversed") << Commands{{1, "OUT 1"}, {2, "Out 1"}} << "out 1"
                                              << "OUT 1";
}

void TestCmdDialog::typedCommand()
{
    QFETCH(Commands, commands);
    QFETCH(QString, typed);
    QFETCH(QString, expected);

    CmdDialog dialog(nullptr, commands);
    QComboBox *box = commandBox(&dialog);
    QTest::keyClicks(box->lineEdit(), typed);
    QCOMPARE(box->currentText(), typed);
    QCOMPARE(dialog.getCmd(), expected);
}

void TestCmdDialog::debugStream()
{
    DebugCapture capture;
    Commands commands{{3, "c"}, {1, "a"}, {2, "b"}};
    CmdDialog dialog(nullptr, commands);
    QCOMPARE(debugLines.size(), 2);
    QStringList unsorted = debugLines.at(0).mid(1, debugLines.at(0).size() - 2).split(", ");
    std::sort(unsorted.begin(), unsorted.end());
    QCOMPARE(unsorted, QStringList({"1", "2", "3"}));
    QCOMPARE(debugLines.at(1), QStringLiteral("(1, 2, 3)"));

    debugLines.clear();
    QTest::keyClicks(commandBox(&dialog)->lineEdit(), QStringLiteral("xy"));
    QCOMPARE(debugLines, QStringList({"\"x\"", "\"xy\""}));

    debugLines.clear();
    dialog.getCmd();
    Commands none;
    CmdDialog empty(nullptr, none);
    empty.getCmd();
    QCOMPARE(debugLines, QStringList());
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
