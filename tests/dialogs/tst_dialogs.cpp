// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/dialogs/cmddialog.h"
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/dialogs/gui.h"
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "telecfg/dialogs/statuslabel.h"
#include "telecfg/import/readblockconfigwizard.h"
#include "telecfg/network/countrytable.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>
#include <functional>

using Commands = QHash<int, QString>;
Q_DECLARE_METATYPE(Commands)
using Picks = QList<QPair<int, int>>; // (fuel tab, section) in the order the user picks them
Q_DECLARE_METATYPE(Picks)

namespace {
const QString highlight = QStringLiteral("QFrame{border: 2px solid yellow;}");
const QString resting = QStringLiteral("QFrame{border: 2px solid rgba(255,255,255,0%);}");
const QString green = QStringLiteral("QLabel { background-color : lightgreen};");
const QString red = QStringLiteral("QLabel { background-color : red};");

// Bit i stands for box i, in the order of the constructor's flags and of the getters.
const QStringList boxNames{"cbBt", "cbFuel", "cbCan", "cbConf", "cbDallas"};

int getters(SkipReadDataDialog &dialog)
{
    return dialog.getSkipBt() | dialog.getSkipFuel() << 1 | dialog.getSkipCan() << 2 |
           dialog.getSkipConf() << 3 | dialog.getSkipDallas() << 4;
}

QComboBox *commandBox(QWidget *dialog)
{
    return dialog->findChild<QComboBox *>(QStringLiteral("leCmd"));
}

// A label under `box` with the given weight (-1: no font of its own), italic to see that the
// rest of its font survives.
QLabel *addLabel(QGroupBox *box, int weight, const QString &name = QString())
{
    auto *label = new QLabel(QStringLiteral("x"));
    label->setObjectName(name);
    QFont font = label->font();
    font.setItalic(true);
    if (weight >= 0)
        font.setWeight(QFont::Weight(weight));
    label->setFont(font);
    if (!box->layout())
        new QVBoxLayout(box);
    box->layout()->addWidget(label);
    return label;
}

const int normal = QFont::Normal;
const int bold = QFont::Bold;

// The block choice dialog as the user sees it.
struct BlockPage
{
    explicit BlockPage(QWidget *dialog)
        : dialog(dialog), boxes(dialog->findChildren<QCheckBox *>()),
          fuelTabs(dialog->findChildren<QComboBox *>()), labels(dialog->findChildren<QLabel *>())
    {
        const auto *buttonBox = dialog->findChild<QDialogButtonBox *>();
        for (QAbstractButton *button : buttonBox->buttons())
            (buttonBox->buttonRole(button) == QDialogButtonBox::AcceptRole ? next : cancel) =
                button;
    }

    void tickFuel() const { QTest::mouseClick(boxes.at(0), Qt::LeftButton); }

    QWidget *dialog;
    QList<QCheckBox *> boxes;
    QList<QComboBox *> fuelTabs;
    QList<QLabel *> labels;
    QAbstractButton *next = nullptr;
    QAbstractButton *cancel = nullptr;
};

using BlockAction = std::function<void(const BlockPage &)>;
using FileAction = std::function<void(QFileDialog *)>;

// Plays the user through the block choice and then the file dialog.
ModalCatcher *userOf(const BlockAction &onBlocks, const FileAction &onFile)
{
    return new ModalCatcher([onBlocks, onFile](QWidget *modal) {
        if (auto *fileDialog = qobject_cast<QFileDialog *>(modal))
            onFile(fileDialog);
        else
            onBlocks(BlockPage(modal));
    });
}

void tickFuelAndGoOn(const BlockPage &page)
{
    page.tickFuel();
    QTest::mouseClick(page.next, Qt::LeftButton);
}

FileAction typeName(const QString &name)
{
    return [name](QFileDialog *dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")), name);
        auto *buttons = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
    };
}

const FileAction cancelFile = [](QFileDialog *dialog) { dialog->reject(); };
} // namespace

class TestDialogs : public TestCase
{
    Q_OBJECT

private slots:
    // Each row follows setValue("5", green, no highlight, 0): only a change or a duration
    // sets the style, each state with its own colour.
    void setValue_data()
    {
        columns<QString, int, bool, int, QString>("value", "state", "highlight", "durationMs",
                                                  "sheet");

        row("none", "6", 0, false, 0, resting + "QLabel {};");
        row("green", "6", 1, false, 0, resting + green);
        row("red", "6", 2, false, 0, resting + red);
        row("yellow", "6", 3, false, 0, resting + "QLabel { background-color : yellow};");
        row("orange", "6", 4, false, 0, resting + "QLabel { background-color : orange};");
        row("red too", "6", 5, false, 0, resting + red);
        row("6: frame only", "6", 6, true, 0, highlight);
        row("repeat", "5", 1, true, 0, resting + green);
        row("repeat, duration", "5", 1, false, 500, highlight + green);
        row("new state", "5", 2, true, 0, highlight + red);
    }

    void setValue()
    {
        auto [value, state, highlight, durationMs, sheet] = fetch<QString, int, bool, int, QString>(
            "value", "state", "highlight", "durationMs", "sheet");

        StatusLabel label;
        label.setValue(QStringLiteral("5"), StatusLabel::StateGreen, false, 0);
        label.setValue(value, StatusLabel::State(state), highlight, durationMs);
        QCOMPARE(label.styleSheet(), sheet);
    }

    void highlightEnds_data()
    {
        columns<int, int>("durationMs", "expectedMs");

        row("given", 500, 500);
        row("negative: default", -300, 2000);
        row("0: default", 0, 2000);
    }

    void highlightEnds()
    {
        auto [durationMs, expectedMs] = fetch<int, int>("durationMs", "expectedMs");

        StatusLabel label;
        label.setValue(QStringLiteral("on"), StatusLabel::StateGreen, true, durationMs);
        // Halfway between the two durations only the shorter highlight has ended; no upper
        // bound on time, so a loaded machine cannot fail it.
        QTest::qWait(1200);
        QCOMPARE(label.styleSheet() == resting + green, expectedMs < 1200);
        // An ended highlight keeps the state's colour.
        QTRY_COMPARE_WITH_TIMEOUT(label.styleSheet(), resting + green, expectedMs + 3000);

        // A resting change stops the timer: a host's own style set later stays.
        label.setValue(QStringLiteral("1"), StatusLabel::StateOrange, true, 100);
        label.setValue(QStringLiteral("2"), StatusLabel::StateRed, false, 0);
        label.setStyleSheet(QStringLiteral("QLabel {};"));
        QTest::qWait(200);
        QCOMPARE(label.styleSheet(), QStringLiteral("QLabel {};"));
    }

    void skipReadExec_data()
    {
        // clicks: the boxes the user clicks
        columns<int, int, bool>("flags", "clicks", "ok");

        for (int i = 0; i < boxNames.size(); ++i)
            row(qPrintable(boxNames[i]), (1 << i), (1 << (i + 1) % 5), true);
        row("cancel", 0b10101, 0b11111, false);
    }

    // Every run shows the flags as they stand; only a confirmed run takes the boxes' values.
    void skipReadExec()
    {
        auto [flags, clicks, ok] = fetch<int, int, bool>("flags", "clicks", "ok");

        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        SkipReadDataDialog dialog(nullptr, flags & 1, flags & 2, flags & 4, flags & 8, flags & 16);
        QCoreApplication::removeTranslator(&translator);
        for (int run = 0; run < 2; ++run) {
            QStringList texts;
            int seen = 0;
            ModalCatcher user([&, clicks = clicks, ok = ok](QWidget *modal) {
                texts << modal->windowTitle()
                      << modal->findChild<QLabel *>(QStringLiteral("lTitle"))->text();
                for (int i = 0; i < boxNames.size(); ++i) {
                    auto *box = modal->findChild<QCheckBox *>(boxNames[i]);
                    texts << box->text();
                    seen |= box->isChecked() << i;
                    // On the indicator: a box in the field column is wider than its text.
                    if (clicks & 1 << i)
                        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
                }
                auto *box = modal->findChild<QDialogButtonBox *>();
                QTest::mouseClick(box->button(ok ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel),
                                  Qt::LeftButton);
            });
            const int before = getters(dialog);
            QCOMPARE(dialog.exec(), int(ok));
            QCOMPARE(seen, before);
            QCOMPARE(getters(dialog), ok ? before ^ clicks : before);
            QCOMPARE(texts.filter(QStringLiteral("[SkipReadDataDialog]")).size(), 7);
            QCOMPARE(
                texts.join('|').remove(QStringLiteral("[SkipReadDataDialog]")),
                QStringLiteral(
                    "Odczyt - pomijane dane|Pomiń odczyt:|Bluetooth|Paliwo|CAN|Pozostałe|Dallas"));
        }
    }

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

        // CTest runs the suite under a point locale and a comma one, and says which.
        const QByteArray forced = qgetenv("TELECFG_TEST_DECIMAL_POINT");
        const QString decimalPoint = QLocale::system().decimalPoint();
        if (!forced.isEmpty())
            QCOMPARE(decimalPoint, QString(QChar::fromLatin1(forced.at(0))));

        DualInputDlg dialog(decimals);
        auto *edit = dialog.findChild<QLineEdit *>(field == 1 ? "lineEdit" : "lineEdit_2");
        QTest::keyClicks(edit, text);
        QCOMPARE(edit->text() == text && edit->hasAcceptableInput(),
                 accepts.contains(decimalPoint));
    }

    // The preset skips the validator and puts the cursor in the second field, which refuses
    // letters.
    void dualExec()
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

    void cmdExec_data()
    {
        columns<int, int>("button", "result");

        row("OK", int(QDialogButtonBox::Ok), 1);
        row("Cancel", int(QDialogButtonBox::Cancel), 0);
    }

    // The user picks an item and adds an argument.
    void cmdExec()
    {
        auto [button, result] = fetch<int, int>("button", "result");

        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        Commands commands{{0, "Reset 5"}, {1, "Get Speed"}};
        CmdDialog dialog(nullptr, commands);
        QCoreApplication::removeTranslator(&translator);
        ModalCatcher catcher([button = button](QWidget *modal) {
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

    void constructionFillsTable()
    {
        countryTable.clear();
        GUI gui;
        QCOMPARE(countryTable.size(), 222);
        countryTable.remove(260); // every construction fills anew
        GUI other;
        QCOMPARE(countryTable.size(), 222);
    }

    void titleBoldChildWeights()
    {
        QGroupBox box(QStringLiteral("Zasilanie"));
        const int pointSize = box.font().pointSize();
        // By name: Qt 5 weighs fonts 0..99 (Medium 57, Bold 75), Qt 6 100..900 (500, 700).
        const QList<int> weights{-1, QFont::Light, QFont::Medium, QFont::Medium + 1, QFont::Black};
        QList<QLabel *> labels;
        for (int weight : weights)
            labels << addLabel(&box, weight);
        labels << addLabel(&box, QFont::Bold,
                           QStringLiteral("lbVoltage")); // named widgets count too

        for (int pass = 0; pass < 2; ++pass) { // a second call keeps the same look
            setGroupBoxTitleBold(&box);
            QList<int> got;
            for (QLabel *label : labels) {
                got << label->font().weight();
                QVERIFY(label->font().italic());
            }
            QCOMPARE(got, (QList<int>{normal, normal, normal, bold, bold, bold}));
            QCOMPARE(box.font().weight(), bold);
            QCOMPARE(box.font().pointSize(), pointSize);
        }
    }

    void titleBoldNestedBoxes()
    {
        QGroupBox outer(QStringLiteral("Zewnętrzna"));
        QLabel *outerLabel = addLabel(&outer, -1);
        auto *inner = new QGroupBox(QStringLiteral("Wewnętrzna"));
        outer.layout()->addWidget(inner);
        QLabel *innerLabel = addLabel(inner, QFont::Black);
        const auto weights = [&] {
            return QList<int>{outer.font().weight(), outerLabel->font().weight(),
                              inner->font().weight(), innerLabel->font().weight()};
        };

        setGroupBoxTitleBold(&outer); // reaches the grandchild too
        QCOMPARE(weights(), (QList<int>{bold, normal, normal, bold}));
        setGroupBoxTitleBold(inner);
        setGroupBoxTitleBold(&outer); // keeps the inner title bold
        QCOMPARE(weights(), (QList<int>{bold, normal, bold, bold}));

        QGroupBox empty;
        setGroupBoxTitleBold(&empty);
        QCOMPARE(empty.font().weight(), bold);
        setGroupBoxTitleBold(nullptr); // must not crash
    }

    void initTestCase()
    {
        // The toolkit's own file dialog, which a test can type into on any platform.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(directory.isValid());
    }

    void wizardDialogs()
    {
        ContextTranslator translator;
        QCoreApplication::installTranslator(&translator);
        QWidget parent;
        ReadBlockConfigWizard wizard(QString(), &parent);
        QStringList texts;
        QList<bool> enabled; // the three boxes; Next and the last fuel row before and after a tick
        QScopedPointer<ModalCatcher> user(userOf(
            [&](const BlockPage &page) {
                texts << page.dialog->windowTitle();
                for (QLabel *label : page.labels)
                    texts << label->text();
                for (QCheckBox *box : page.boxes)
                    texts << box->text();
                texts << page.next->text() << page.cancel->text() << page.fuelTabs[3]->itemText(2);
                for (QCheckBox *box : page.boxes)
                    enabled << box->isEnabled();
                enabled << page.next->isEnabled() << page.labels.last()->isEnabled()
                        << page.fuelTabs.last()->isEnabled();
                page.tickFuel();
                enabled << page.next->isEnabled() << page.labels.last()->isEnabled()
                        << page.fuelTabs.last()->isEnabled();
                QTest::mouseClick(page.next, Qt::LeftButton);
            },
            [&](QFileDialog *dialog) {
                texts << dialog->windowTitle() << dialog->nameFilters();
                texts << dialog->directory().absolutePath();
                cancelFile(dialog);
            }));
        const int result = wizard.exec(directory.path());
        QCoreApplication::removeTranslator(&translator);

        QCOMPARE(result, 2);
        const QString context = QStringLiteral("[ReadBlockConfigWizard]");
        QCOMPARE(texts.filter(context).size(), 14);
        QCOMPARE(texts.join('|').remove(context),
                 QStringLiteral("Import konfiguracji z pliku|Proszę wybrać bloki konfiguracji do "
                                "importu:|Zakładka paliwo 1|Zakładka paliwo 2|Zakładka paliwo 3|"
                                "Zakładka paliwo 4|Charakterystyka paliwa|Identyfikatory kierowców|"
                                "Sieci dozwolone|Dalej|Anuluj|Sekcja 3|Otwórz plik z konfiguarcją|"
                                "Konfiguracja (*.cfg)|") +
                     QDir(directory.path()).absolutePath());
        QCOMPARE(enabled, QList<bool>({true, false, false, false, false, false, true, true, true}));
    }

    void fuelPicks_data()
    {
        columns<Picks, QList<int>>("picks", "sections");

        row("tab 1 takes 3", Picks{{1, 3}}, QList<int>{3, 2, 1, 4});
        row("swap back", Picks{{2, 3}, {2, 2}}, QList<int>{1, 2, 3, 4});
        row("chain", Picks{{1, 2}, {2, 4}, {3, 3}}, QList<int>{2, 4, 3, 1});
    }

    // The tab that held the section picked elsewhere takes the free one: the two swap.
    void fuelPicks()
    {
        auto [picks, sections] = fetch<Picks, QList<int>>("picks", "sections");

        QWidget parent;
        ReadBlockConfigWizard wizard(QString(), &parent);
        QScopedPointer<ModalCatcher> user(userOf(
            [&, picks = picks](const BlockPage &page) {
                page.tickFuel();
                for (const auto &[tab, section] : picks) {
                    QComboBox *combo = page.fuelTabs.at(tab - 1);
                    combo->setCurrentIndex(combo->findData(section));
                }
                QTest::mouseClick(page.next, Qt::LeftButton);
            },
            typeName(QStringLiteral("paliwo.cfg"))));
        QCOMPARE(wizard.exec(directory.path()), 0);
        QCOMPARE(wizard.getOutput().fuelSections.values(), sections);
    }

    void results_data()
    {
        columns<int, QString>("result", "filePath");

        row("file chosen", 0, "nowy.cfg");
        row("file cancelled", 2, "");
        row("blocks closed", 1, "start.cfg");
    }

    // The user ticks fuel and takes "nowy.cfg" (0), cancels the file dialog (2) or closes the
    // block choice (1).
    void results()
    {
        auto [result, filePath] = fetch<int, QString>("result", "filePath");

        QWidget parent;
        ReadBlockConfigWizard wizard(QStringLiteral("start.cfg"), &parent);
        QScopedPointer<ModalCatcher> user(userOf(
            [result = result](const BlockPage &page) {
                if (result == 1)
                    page.dialog->close();
                else
                    tickFuelAndGoOn(page);
            },
            result == 0 ? typeName(QStringLiteral("nowy.cfg")) : cancelFile));
        QCOMPARE(wizard.exec(directory.path()), result);

        const ReadBlockConfigWizard::Output output = wizard.getOutput();
        QCOMPARE(output.blockStates, (QMap<int, bool>{{0, result == 0}, {1, false}, {2, false}}));
        // A name that does not exist comes back as typed, in the start directory.
        QCOMPARE(output.filePath,
                 result == 0 ? QDir(directory.path()).filePath(filePath) : filePath);
        // After 1 or 2 the dialogs and their fuel tabs are gone: nothing is read from them.
        QCOMPARE(parent.findChildren<QDialog *>().size(), result == 0 ? 2 : 0);
        // A further run after 0 leaves the earlier dialogs to the parent.
        if (result == 0) {
            QCOMPARE(wizard.exec(directory.path()), 0);
            QCOMPARE(parent.findChildren<QDialog *>().size(), 4);
        }
        QCOMPARE(output.fuelSections.values(),
                 result == 0 ? QList<int>({1, 2, 3, 4}) : QList<int>({0, 0, 0, 0}));
    }

private:
    QTemporaryDir directory; // the import wizard's start folder
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
