#include "telecfg/import/readblockconfigwizard.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/modalcatcher.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

using BlockStates = QMap<int, bool>;
using Picks = QList<QPair<int, int>>; // (fuel tab, section) in the order the user picks them
Q_DECLARE_METATYPE(Picks)

namespace {
// The block choice dialog as the user sees it.
struct BlockPage
{
    explicit BlockPage(QWidget *dialog) : dialog(dialog)
    {
        for (QCheckBox *box : dialog->findChildren<QCheckBox *>())
            boxes.append(box);
        fuelTabs = dialog->findChildren<QComboBox *>();
        for (QLabel *label : dialog->findChildren<QLabel *>())
            labels.append(label);
        const auto *buttonBox = dialog->findChild<QDialogButtonBox *>();
        for (QAbstractButton *button : buttonBox->buttons()) {
            if (buttonBox->buttonRole(button) == QDialogButtonBox::AcceptRole)
                next = button;
            else
                cancel = button;
        }
    }

    QCheckBox *fuel() const { return boxes.at(0); }
    void pick(int tab, int section) const
    {
        QComboBox *combo = fuelTabs.at(tab - 1);
        combo->setCurrentIndex(combo->findData(section));
    }
    QList<int> sections() const
    {
        QList<int> shown;
        for (QComboBox *combo : fuelTabs)
            shown << combo->currentData().toInt();
        return shown;
    }
    bool fuelRowsEnabled(bool enabled) const
    {
        for (QComboBox *combo : fuelTabs)
            enabled = enabled && combo->isEnabled();
        for (int i = 2; i < labels.size(); ++i) // after the prompt
            enabled = enabled && labels.at(i)->isEnabled();
        return enabled;
    }

    QWidget *dialog;
    QList<QCheckBox *> boxes;
    QList<QComboBox *> fuelTabs;
    QList<QLabel *> labels;
    QAbstractButton *next = nullptr;
    QAbstractButton *cancel = nullptr;
};

using BlockAction = std::function<void(const BlockPage &)>;
using FileAction = std::function<void(QFileDialog *)>;

// Plays the user through both steps: `onBlocks` acts on the block choice, `onFile` on the
// file dialog.
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
    QTest::mouseClick(page.fuel(), Qt::LeftButton);
    QTest::mouseClick(page.next, Qt::LeftButton);
}

void cancelBlocks(const BlockPage &page)
{
    QTest::mouseClick(page.cancel, Qt::LeftButton);
}

FileAction typeName(const QString &name)
{
    return [name](QFileDialog *dialog) {
        auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QTest::keyClicks(edit, name);
        auto *buttons = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        QTest::mouseClick(buttons->button(QDialogButtonBox::Open), Qt::LeftButton);
    };
}

void cancelFile(QFileDialog *dialog)
{
    dialog->reject();
}

QList<int> fuelSections(const ReadBlockConfigWizard::Output &output)
{
    return output.fuelSections.values();
}

const QMap<int, bool> noBlocks{{0, false}, {1, false}, {2, false}};
const QMap<int, bool> fuelOnly{{0, true}, {1, false}, {2, false}};
} // namespace

class TestReadBlockConfigWizard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void blockChoice();
    void fuelPicks_data();
    void fuelPicks();
    void fuelTabsStayPermutation();
    void results_data();
    void results();
    void fileDialogSettings();
    void outputBeforeAnyRun();
    void runsAfterSuccess_data();
    void runsAfterSuccess();

private:
    QTemporaryDir directory;
};

void TestReadBlockConfigWizard::initTestCase()
{
    // The toolkit's own file dialog, which a test can type into on any platform.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(directory.isValid());
}

void TestReadBlockConfigWizard::blockChoice()
{
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QWidget parent;
    ReadBlockConfigWizard wizard(QStringLiteral("old.cfg"), &parent);
    QString title;
    QStringList texts;
    QList<bool> boxesEnabled;
    QList<bool> nextEnabled;
    QList<bool> rowsEnabled;
    QList<int> sectionsAfterUntick;
    QScopedPointer<ModalCatcher> user(userOf(
        [&](const BlockPage &page) {
            title = page.dialog->windowTitle();
            for (QLabel *label : page.labels)
                texts << label->text();
            for (QCheckBox *box : page.boxes) {
                texts << box->text();
                boxesEnabled << box->isEnabled();
            }
            texts << page.next->text() << page.cancel->text();
            for (QComboBox *combo : page.fuelTabs)
                texts << combo->itemText(2);

            nextEnabled << page.next->isEnabled();
            rowsEnabled << page.fuelRowsEnabled(true);
            QTest::mouseClick(page.fuel(), Qt::LeftButton);
            nextEnabled << page.next->isEnabled();
            rowsEnabled << page.fuelRowsEnabled(true);
            page.pick(2, 4);
            QTest::mouseClick(page.fuel(), Qt::LeftButton);
            nextEnabled << page.next->isEnabled();
            rowsEnabled << page.fuelRowsEnabled(true);
            sectionsAfterUntick = page.sections();
            // The disabled blocks cannot be ticked by a click.
            QTest::mouseClick(page.boxes.at(1), Qt::LeftButton);
            nextEnabled << page.next->isEnabled();
            cancelBlocks(page);
        },
        cancelFile));
    const int result = wizard.exec(directory.path());
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(result, 1);
    const QString context = QStringLiteral("[ReadBlockConfigWizard]");
    QCOMPARE(title, context + "Import konfiguracji z pliku");
    QStringList expected{context + "Proszę wybrać bloki konfiguracji do importu:"};
    for (int n = 1; n <= 4; ++n)
        expected << context + "Zakładka paliwo " + QString::number(n);
    expected << context + "Charakterystyka paliwa" << context + "Identyfikatory kierowców"
             << context + "Sieci dozwolone" << context + "Dalej" << context + "Anuluj";
    for (int n = 1; n <= 4; ++n)
        expected << context + "Sekcja 3";
    QCOMPARE(texts, expected);
    QCOMPARE(boxesEnabled, QList<bool>({true, false, false}));
    QCOMPARE(nextEnabled, QList<bool>({false, true, false, false}));
    QCOMPARE(rowsEnabled, QList<bool>({false, true, false}));
    QCOMPARE(sectionsAfterUntick, QList<int>({1, 4, 3, 2}));
    QVERIFY(parent.findChildren<QDialog *>().isEmpty());
    QCOMPARE(wizard.getOutput().filePath, QStringLiteral("old.cfg"));
}

void TestReadBlockConfigWizard::fuelPicks_data()
{
    QTest::addColumn<Picks>("picks");
    QTest::addColumn<QList<int>>("sections");

    QTest::newRow("as opened") << Picks{} << QList<int>{1, 2, 3, 4};
    QTest::newRow("tab 1 takes 3") << Picks{{1, 3}} << QList<int>{3, 2, 1, 4};
    QTest::newRow("tab 4 takes 1") << Picks{{4, 1}} << QList<int>{4, 2, 3, 1};
    QTest::newRow("own section again") << Picks{{3, 3}} << QList<int>{1, 2, 3, 4};
    QTest::newRow("swap and swap back") << Picks{{2, 3}, {2, 2}} << QList<int>{1, 2, 3, 4};
    QTest::newRow("chain") << Picks{{1, 2}, {2, 4}, {3, 3}} << QList<int>{2, 4, 3, 1};
    QTest::newRow("reverse") << Picks{{1, 4}, {2, 3}} << QList<int>{4, 3, 2, 1};
}

void TestReadBlockConfigWizard::fuelPicks()
{
    QFETCH(Picks, picks);
    QFETCH(QList<int>, sections);

    QWidget parent;
    ReadBlockConfigWizard wizard(QString(), &parent);
    QScopedPointer<ModalCatcher> user(userOf(
        [picks](const BlockPage &page) {
            QTest::mouseClick(page.fuel(), Qt::LeftButton);
            for (const auto &pick : picks)
                page.pick(pick.first, pick.second);
            QTest::mouseClick(page.next, Qt::LeftButton);
        },
        typeName(QStringLiteral("paliwo.cfg"))));
    QCOMPARE(wizard.exec(directory.path()), 0);
    QCOMPARE(fuelSections(wizard.getOutput()), sections);
    QCOMPARE(wizard.getOutput().fuelSections.keys(), QList<int>({1, 2, 3, 4}));
}

void TestReadBlockConfigWizard::fuelTabsStayPermutation()
{
    QWidget parent;
    ReadBlockConfigWizard wizard(QString(), &parent);
    QStringList faults;
    QScopedPointer<ModalCatcher> user(userOf(
        [&faults](const BlockPage &page) {
            QTest::mouseClick(page.fuel(), Qt::LeftButton);
            QRandomGenerator random(7);
            for (int i = 0; i < 200; ++i) {
                const int tab = random.bounded(1, 5);
                const int section = random.bounded(1, 5);
                page.pick(tab, section);
                QList<int> shown = page.sections();
                if (shown.at(tab - 1) != section)
                    faults
                        << QStringLiteral("pick %1: tab %2 lost %3").arg(i).arg(tab).arg(section);
                std::sort(shown.begin(), shown.end());
                if (shown != QList<int>({1, 2, 3, 4}))
                    faults << QStringLiteral("pick %1: not a permutation").arg(i);
            }
            cancelBlocks(page);
        },
        cancelFile));
    QCOMPARE(wizard.exec(directory.path()), 1);
    QCOMPARE(faults, QStringList());
}

void TestReadBlockConfigWizard::results_data()
{
    QTest::addColumn<bool>("closeWindow");
    QTest::addColumn<bool>("acceptFile");
    QTest::addColumn<int>("result");
    QTest::addColumn<BlockStates>("blockStates");
    QTest::addColumn<QString>("filePath");
    QTest::addColumn<int>("dialogsLeft");

    QTest::newRow("file chosen") << false << true << 0 << fuelOnly << "nowy.cfg" << 2;
    QTest::newRow("file dialog cancelled") << false << false << 2 << noBlocks << "" << 0;
    QTest::newRow("blocks closed by window") << true << false << 1 << noBlocks << "start.cfg" << 0;
}

void TestReadBlockConfigWizard::results()
{
    QFETCH(bool, closeWindow);
    QFETCH(bool, acceptFile);
    QFETCH(int, result);
    QFETCH(BlockStates, blockStates);
    QFETCH(QString, filePath);
    QFETCH(int, dialogsLeft);

    QWidget parent;
    ReadBlockConfigWizard wizard(QStringLiteral("start.cfg"), &parent);
    QScopedPointer<ModalCatcher> user(userOf(
        [closeWindow](const BlockPage &page) {
            if (closeWindow)
                page.dialog->close();
            else
                tickFuelAndGoOn(page);
        },
        acceptFile ? typeName(QStringLiteral("nowy.cfg")) : FileAction(cancelFile)));
    QCOMPARE(wizard.exec(directory.path()), result);

    const ReadBlockConfigWizard::Output output = wizard.getOutput();
    QCOMPARE(output.blockStates, blockStates);
    // A name that does not exist comes back as typed, in the start directory.
    QCOMPARE(output.filePath, result == 0 ? QDir(directory.path()).filePath(filePath) : filePath);
    const QList<QDialog *> left = parent.findChildren<QDialog *>();
    QCOMPARE(left.size(), dialogsLeft);
    for (QDialog *dialog : left)
        QVERIFY(dialog->isHidden());
    // After 1 or 2 the fuel tabs are gone with their dialog: nothing is read from them.
    QCOMPARE(fuelSections(output),
             result == 0 ? QList<int>({1, 2, 3, 4}) : QList<int>({0, 0, 0, 0}));
}

void TestReadBlockConfigWizard::fileDialogSettings()
{
    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QString title;
    QStringList filters;
    QString startDirectory;
    bool blocksHidden = false;
    QWidget parent;
    ReadBlockConfigWizard wizard(QString(), &parent);
    QScopedPointer<ModalCatcher> user(userOf(tickFuelAndGoOn, [&](QFileDialog *dialog) {
        title = dialog->windowTitle();
        filters = dialog->nameFilters();
        startDirectory = dialog->directory().absolutePath();
        blocksHidden = parent.findChild<QDialog *>()->isHidden();
        cancelFile(dialog);
    }));
    const int result = wizard.exec(directory.path());
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(result, 2);
    const QString context = QStringLiteral("[ReadBlockConfigWizard]");
    QCOMPARE(title, context + "Otwórz plik z konfiguarcją");
    QCOMPARE(filters, QStringList(context + "Konfiguracja (*.cfg)"));
    QCOMPARE(startDirectory, QDir(directory.path()).absolutePath());
    QVERIFY(blocksHidden);
}

void TestReadBlockConfigWizard::outputBeforeAnyRun()
{
    ReadBlockConfigWizard wizard(QStringLiteral("/tmp/a.cfg"), nullptr);
    const ReadBlockConfigWizard::Output output = wizard.getOutput();
    QCOMPARE(output.blockStates, noBlocks);
    QCOMPARE(output.fuelSections, (QMap<int, int>{{1, 0}, {2, 0}, {3, 0}, {4, 0}}));
    QCOMPARE(output.filePath, QStringLiteral("/tmp/a.cfg"));
}

void TestReadBlockConfigWizard::runsAfterSuccess_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::newRow("with a parent") << true;
    QTest::newRow("without a parent") << false;
}

// A further run after a result of 0 leaves the earlier dialogs to the parent; a cancelled
// run after a successful one forgets the earlier path and choices.
void TestReadBlockConfigWizard::runsAfterSuccess()
{
    QFETCH(bool, withParent);

    QWidget parent;
    auto *wizard = new ReadBlockConfigWizard(QString(), withParent ? &parent : nullptr);
    {
        QScopedPointer<ModalCatcher> user(userOf(tickFuelAndGoOn, typeName("a.cfg")));
        QCOMPARE(wizard->exec(directory.path()), 0);
        QCOMPARE(wizard->exec(directory.path()), 0);
    }
    if (withParent)
        QCOMPARE(parent.findChildren<QDialog *>().size(), 4);
    {
        QScopedPointer<ModalCatcher> user(userOf(cancelBlocks, cancelFile));
        QCOMPARE(wizard->exec(directory.path()), 1);
    }
    QCOMPARE(wizard->getOutput().filePath, QString());
    QCOMPARE(wizard->getOutput().blockStates, noBlocks);
    if (withParent)
        QCOMPARE(parent.findChildren<QDialog *>().size(), 3); // the second run's block choice stays
    delete wizard;
}

QTEST_MAIN(TestReadBlockConfigWizard)
#include "tst_readblockconfigwizard.moc"
