// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/import/readblockconfigwizard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const int fuelTabCount = 4;

// One flag for the whole process: it stops setComboBoxFuel from running again from the
// selections it makes itself. Two wizards alive at once share it, which is harmless since
// both run on the one user-interface thread.
bool fuelComboGuard = false;

// Clears the guard on every way out of setComboBoxFuel.
class GuardRelease
{
public:
    GuardRelease() { fuelComboGuard = true; }
    ~GuardRelease() { fuelComboGuard = false; }
    GuardRelease(const GuardRelease &) = delete;
    GuardRelease &operator=(const GuardRelease &) = delete;
};
} // namespace

ReadBlockConfigWizard::ReadBlockConfigWizard(const QString &path, QWidget *parent)
    : QObject(parent), filePath(path), parentWidget(parent)
{
    fillBlockStructList();
    fillBlockStateMap();
}

ReadBlockConfigWizard::~ReadBlockConfigWizard()
{
    clear();
    qDeleteAll(unparentedDialogs);
}

int ReadBlockConfigWizard::exec(const QString &directory)
{
    // The wizard is its parent's child: a host that deletes the parent while a dialog is
    // open deletes the wizard too, and nothing of it may be touched after exec returns.
    const QPointer<ReadBlockConfigWizard> alive(this);
    createBlockConfigChoseDialog();
    const int chosen = blockDialog->exec();
    if (!alive)
        return 1;
    if (chosen != QDialog::Accepted || !blockDialog) {
        clear();
        return 1;
    }
    setBlockStateList();

    createFileDialog(directory);
    const int opened = fileDialog->exec();
    if (!alive)
        return 2;
    if (opened != QDialog::Accepted || !fileDialog) {
        clear();
        return 2;
    }
    setFilePath();
    return 0;
}

ReadBlockConfigWizard::Output ReadBlockConfigWizard::getOutput()
{
    Output output;
    output.filePath = filePath;
    output.blockStates = blockStateMap;
    for (int tab = 1; tab <= fuelTabCount; ++tab) {
        QComboBox *combo = fuelComboBoxes[tab];
        output.fuelSections[tab] = combo ? combo->currentData(Qt::UserRole).toInt() : 0;
    }
    return output;
}

void ReadBlockConfigWizard::fillBlockStructList()
{
    blockStructList.append({BlockFuel, nullptr, tr("Charakterystyka paliwa")});
    blockStructList.append({BlockDrivers, nullptr, tr("Identyfikatory kierowców")});
    blockStructList.append({BlockNetworks, nullptr, tr("Sieci dozwolone")});
}

void ReadBlockConfigWizard::fillBlockStateMap()
{
    blockStateMap[BlockFuel] = false;
    blockStateMap[BlockDrivers] = false;
    blockStateMap[BlockNetworks] = false;
}

void ReadBlockConfigWizard::createBlockConfigChoseDialog()
{
    // A further run after a result of 0 leaves the earlier dialogs to their parent.
    if (!parentWidget) {
        for (QWidget *dialog :
             {static_cast<QWidget *>(blockDialog), static_cast<QWidget *>(fileDialog)}) {
            if (dialog)
                unparentedDialogs.append(dialog);
        }
    }

    blockDialog = new QDialog(parentWidget);
    blockDialog->setWindowTitle(tr("Import konfiguracji z pliku"));

    auto *layout = new QVBoxLayout(blockDialog);
    layout->addWidget(new QLabel(tr("Proszę wybrać bloki konfiguracji do importu:")));
    layout->addSpacing(5);

    auto *buttonBox = new QDialogButtonBox(Qt::Horizontal, blockDialog);
    nextButton = buttonBox->addButton(tr("Dalej"), QDialogButtonBox::AcceptRole);
    nextButton->setEnabled(false);
    buttonBox->addButton(tr("Anuluj"), QDialogButtonBox::RejectRole);

    for (BlockStruct &block : blockStructList) {
        block.checkBox = new QCheckBox(block.title);
        layout->addWidget(block.checkBox);
        // Only the fuel block can be imported; the others are shown, never offered.
        if (block.id != BlockFuel)
            block.checkBox->setEnabled(false);
        if (block.id == BlockFuel) {
            fuelCheckBox = block.checkBox;
            layout->addLayout(createFuelSection());
        }
        connect(block.checkBox, &QCheckBox::stateChanged, this, [this] { updateNextButton(); });
    }

    connect(buttonBox, SIGNAL(accepted()), blockDialog, SLOT(accept()));
    connect(buttonBox, SIGNAL(rejected()), blockDialog, SLOT(reject()));
    layout->addWidget(buttonBox);
}

QFormLayout *ReadBlockConfigWizard::createFuelSection()
{
    fuelLayout = new QFormLayout;
    // Indented so that the rows read as part of the fuel block above them.
    fuelLayout->setContentsMargins(24, 0, 0, 6);

    QList<QPair<QString, int>> sections;
    for (int n = 1; n <= fuelTabCount; ++n) {
        auto *combo = new QComboBox;
        fuelComboBoxes[n] = combo;
        sections.append({tr("Sekcja %1").arg(n), n});
        fuelLayout->addRow(new QLabel(tr("Zakładka paliwo %1").arg(n)), combo);
        connect(combo, SIGNAL(currentIndexChanged(int)), this, SLOT(setComboBoxFuel(int)));
    }

    // The slot already runs while the items arrive; the selections below settle it.
    for (const auto &section : qAsConst(sections)) {
        for (QComboBox *combo : qAsConst(fuelComboBoxes)) {
            if (combo)
                combo->addItem(section.first, QVariant(section.second));
        }
    }
    for (auto it = fuelComboBoxes.cbegin(); it != fuelComboBoxes.cend(); ++it) {
        if (*it)
            (*it)->setCurrentIndex((*it)->findData(QVariant(it.key()), Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive));
    }

    connect(fuelCheckBox, &QCheckBox::stateChanged, this, [this] { updateFuelRows(); });
    emit fuelCheckBox->stateChanged(0);
    return fuelLayout;
}

void ReadBlockConfigWizard::updateNextButton()
{
    if (!nextButton)
        return;
    bool anyChecked = false;
    for (const BlockStruct &block : qAsConst(blockStructList))
        anyChecked = anyChecked || (block.checkBox && block.checkBox->isChecked());
    nextButton->setEnabled(anyChecked);
}

void ReadBlockConfigWizard::updateFuelRows()
{
    if (!fuelCheckBox || !fuelLayout)
        return;
    const bool enabled = fuelCheckBox->isChecked();
    for (int row = 0; row < fuelLayout->rowCount(); ++row) {
        for (auto role : {QFormLayout::LabelRole, QFormLayout::FieldRole}) {
            if (QLayoutItem *item = fuelLayout->itemAt(row, role)) {
                if (QWidget *widget = item->widget())
                    widget->setEnabled(enabled);
            }
        }
    }
}

// Keeps the four tabs a permutation of the sections 1 to 4: a tab that held the section
// just picked elsewhere receives the lowest free one, so two tabs swap.
void ReadBlockConfigWizard::setComboBoxFuel(int newIndex)
{
    if (fuelComboGuard)
        return;
    GuardRelease guard;

    auto *sender = qobject_cast<QComboBox *>(QObject::sender());
    if (!sender || newIndex < 0)
        return;
    const int wanted = sender->itemData(newIndex, Qt::UserRole).toInt();
    if (wanted == 0)
        return;

    QMap<int, bool> taken;
    for (int section = 1; section <= fuelTabCount; ++section)
        taken[section] = false;
    for (QComboBox *combo : qAsConst(fuelComboBoxes)) {
        if (!combo)
            continue;
        const int value = combo->currentData(Qt::UserRole).toInt();
        if (taken.contains(value))
            taken[value] = true;
    }

    for (QComboBox *combo : qAsConst(fuelComboBoxes)) {
        if (!combo || combo == sender || combo->currentData(Qt::UserRole).toInt() != wanted)
            continue;
        int freeSection = 0;
        for (auto it = taken.cbegin(); it != taken.cend(); ++it) {
            if (!it.value()) {
                freeSection = it.key();
                break;
            }
        }
        // A section the box does not hold selects nothing (-1), as it stands.
        combo->setCurrentIndex(combo->findData(QVariant(freeSection), Qt::UserRole,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive));
        taken[freeSection] = true;
    }
}

void ReadBlockConfigWizard::setBlockStateList()
{
    for (auto it = blockStateMap.begin(); it != blockStateMap.end(); ++it) {
        for (const BlockStruct &block : qAsConst(blockStructList)) {
            if (block.id == it.key())
                it.value() = block.checkBox && block.checkBox->isChecked();
        }
    }
}

void ReadBlockConfigWizard::createFileDialog(const QString &directory)
{
    // The caption's spelling is the one hosts' translations know; it stays.
    // File and accept modes stay the toolkit's defaults: a name that does not exist yet
    // is accepted and returned as typed.
    fileDialog = new QFileDialog(parentWidget, tr("Otwórz plik z konfiguarcją"), directory,
                                 tr("Konfiguracja (*.cfg)"));
}

void ReadBlockConfigWizard::setFilePath()
{
    if (!fileDialog)
        return;
    const QStringList files = fileDialog->selectedFiles();
    filePath = files.isEmpty() ? QString() : files.first();
}

void ReadBlockConfigWizard::clear()
{
    if (blockDialog) {
        delete blockDialog;
        blockDialog = nullptr;
        nextButton = nullptr;
        for (BlockStruct &block : blockStructList)
            block.checkBox = nullptr;
        for (auto it = blockStateMap.begin(); it != blockStateMap.end(); ++it)
            it.value() = false;
    }
    if (fileDialog) {
        delete fileDialog;
        fileDialog = nullptr;
        filePath.clear();
    }
}
