// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/import/readblockconfigwizard.h"
#include "tests/support/contexttranslator.h"
#include "tests/support/datatable.h"
#include "tests/support/modalcatcher.h"
#include "tests/support/testcase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

using Picks = QList<QPair<int, int>>; // (fuel tab, section) in the order the user picks them
Q_DECLARE_METATYPE(Picks)

namespace {
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

class TestReadBlockConfigWizard : public TestCase
{
    Q_OBJECT
    QTemporaryDir directory;

private slots:
    void initTestCase()
    {
        // The toolkit's own file dialog, which a test can type into on any platform.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QVERIFY(directory.isValid());
    }

    void dialogs()
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
        QFETCH(Picks, picks);
        QFETCH(QList<int>, sections);

        QWidget parent;
        ReadBlockConfigWizard wizard(QString(), &parent);
        QScopedPointer<ModalCatcher> user(userOf(
            [&](const BlockPage &page) {
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
        QFETCH(int, result);
        QFETCH(QString, filePath);

        QWidget parent;
        ReadBlockConfigWizard wizard(QStringLiteral("start.cfg"), &parent);
        QScopedPointer<ModalCatcher> user(userOf(
            [result](const BlockPage &page) {
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
};

QTEST_MAIN(TestReadBlockConfigWizard)
#include "tst_readblockconfigwizard.moc"
