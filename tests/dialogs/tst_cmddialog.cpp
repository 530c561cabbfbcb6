// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/cmddialog.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using Commands = QHash<int, QString>;
Q_DECLARE_METATYPE(Commands)

namespace {
QComboBox *commandBox(QWidget *dialog)
{
    return dialog->findChild<QComboBox *>(QStringLiteral("leCmd"));
}
} // namespace

class TestCmdDialog : public TestCase
{
    Q_OBJECT

private slots:
    void commands_data()
    {
        // items: "key:text" in the list's order
        // typing: what is typed, what getCmd returns
        columns<Commands, QString, QStringList>("commands", "items", "typing");

        const Commands reset{{1, "Reset 5"}, {2, "Get Speed"}, {4, "ab cd"}};
        const QString listed = QStringLiteral("1:Reset 5 2:Get Speed 4:ab cd ");
        const QStringList none{"", ""};
        row("keys", Commands{{3, "c"}, {0, "a"}, {-4, "n"}}, "0:a 3:c ", none);
        row("spacing", reset, listed, QStringList{"RESET   5", "Reset 5"});
        row("arg spacing", reset, listed, QStringList{"ab c d", "ab cd"});
        row("extra arg", reset, listed, QStringList{"reset 5 a", "reset 5 a"});
        row("arg case", reset, listed, QStringList{"get speed", "get speed"});
        row("no items", Commands{}, QString(), QStringList{"RESET 5", "RESET 5"});
        row("first key wins", Commands{{1, "Out 1"}, {2, "OUT 1"}}, "1:Out 1 2:OUT 1 ",
            QStringList{"out 1", "Out 1"});
    }

    // The list offers the commands by ascending key, none selected; getCmd maps what is typed.
    void commands()
    {
        auto [commands, items, typing] =
            fetch<Commands, QString, QStringList>("commands", "items", "typing");

        CmdDialog dialog(nullptr, commands);
        QComboBox *box = commandBox(&dialog);
        QString shown;
        for (int i = 0; i < box->count(); ++i)
            shown += box->itemData(i).toString() + ':' + box->itemText(i) + ' ';
        QCOMPARE(shown, items);
        QTest::keyClicks(box->lineEdit(), typing[0]);
        QCOMPARE(box->currentText(), typing[0]); // no completion into an item
        QCOMPARE(dialog.getCmd(), typing[1]);
    }

    // The keys, unsorted and sorted, and every edit go to the debug stream.
    void debugStream()
    {
        // The toolkit writes a list as "(1, 2, 3)" in Qt 5 and as "QList(1, 2, 3)" in Qt 6.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QString list = QStringLiteral("QList");
#else
        const QString list;
#endif
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^" + list + "\\(\\d, \\d, \\d\\)$"));
        QTest::ignoreMessage(QtDebugMsg, qPrintable(list + "(1, 2, 3)"));
        QTest::ignoreMessage(QtDebugMsg, "\"x\"");
        Commands commands{{3, "c"}, {1, "a"}, {2, "b"}};
        CmdDialog dialog(nullptr, commands);
        QTest::keyClicks(commandBox(&dialog)->lineEdit(), QStringLiteral("x"));
    }

    void exec_data()
    {
        columns<int, int>("button", "result");

        row("OK", int(QDialogButtonBox::Ok), 1);
        row("Cancel", int(QDialogButtonBox::Cancel), 0);
    }

    // The user picks an item and adds an argument.
    void exec()
    {
        QFETCH(int, button);
        QFETCH(int, result);

        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        Commands commands{{0, "Reset 5"}, {1, "Get Speed"}};
        CmdDialog dialog(nullptr, commands);
        QCoreApplication::removeTranslator(&translator);
        ModalCatcher catcher([button](QWidget *modal) {
            QCOMPARE(modal->findChild<QLabel *>()->text(), QStringLiteral("[CmdDialog]Polecenie"));
            QComboBox *box = commandBox(modal);
            QCOMPARE(modal->focusWidget(), box);
            box->setCurrentIndex(1);
            QTest::keyClicks(box->lineEdit(), QStringLiteral("  2"));
            auto *buttons = modal->findChild<QDialogButtonBox *>();
            QTest::mouseClick(buttons->button(QDialogButtonBox::StandardButton(button)),
                              Qt::LeftButton);
        });
        QCOMPARE(dialog.exec(), result);
        QCOMPARE(catcher.seen.value(0).title, QStringLiteral("[CmdDialog]Wykonaj zdalny rozkaz"));
        QCOMPARE(dialog.getCmd(), QStringLiteral("Get Speed  2"));
    }
};

QTEST_MAIN(TestCmdDialog)
#include "tst_cmddialog.moc"
