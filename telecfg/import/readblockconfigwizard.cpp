// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/import/readblockconfigwizard.h"

#include <QPointer>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

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

struct ReadBlockConfigWizard::Private
{
    struct BlockStruct
    {
        qint32 id;
        QPointer<QCheckBox> checkBox;
        QString title;
    };

    QString filePath;
    // Guarded pointers: the dialogs belong to the parent widget too, and the fuel widgets
    // die with a dialog that clear() deletes while these keep pointing at them.
    QPointer<QDialog> blockDialog;
    QPointer<QFileDialog> fileDialog;
    QPointer<QPushButton> nextButton;
    QPointer<QFormLayout> fuelLayout;
    QPointer<QCheckBox> fuelCheckBox;
    QMap<int, QPointer<QComboBox>> fuelComboBoxes;
    QPointer<QWidget> parentWidget;
    QList<BlockStruct> blockStructList;
    QMap<int, bool> blockStateMap;
    // Dialogs of earlier successful runs when there is no parent widget to own them.
    QList<QPointer<QWidget>> unparentedDialogs;
};

ReadBlockConfigWizard::ReadBlockConfigWizard(const QString &path, QWidget *parent)
    : QObject(parent), d(std::make_unique<Private>())
{
    d->filePath = path;
    d->parentWidget = parent;
    fillBlockStructList();
    fillBlockStateMap();
}

ReadBlockConfigWizard::~ReadBlockConfigWizard()
{
    clear();
    qDeleteAll(d->unparentedDialogs);
}

int ReadBlockConfigWizard::exec(const QString &directory)
{
    // The wizard is its parent's child: a host that deletes the parent while a dialog is
    // open deletes the wizard too, and nothing of it may be touched after exec returns.
    const QPointer<ReadBlockConfigWizard> alive(this);
    createBlockConfigChoseDialog();
    const int chosen = d->blockDialog->exec();
    if (!alive)
        return 1;
    if (chosen != QDialog::Accepted || !d->blockDialog) {
        clear();
        return 1;
    }
    setBlockStateList();

    createFileDialog(directory);
    const int opened = d->fileDialog->exec();
    if (!alive)
        return 2;
    if (opened != QDialog::Accepted || !d->fileDialog) {
        clear();
        return 2;
    }
    setFilePath();
    return 0;
}

ReadBlockConfigWizard::Output ReadBlockConfigWizard::getOutput()
{
    Output output;
    output.filePath = d->filePath;
    output.blockStates = d->blockStateMap;
    for (int tab = 1; tab <= fuelTabCount; ++tab) {
        QComboBox *combo = d->fuelComboBoxes[tab];
        output.fuelSections[tab] = combo ? combo->currentData(Qt::UserRole).toInt() : 0;
    }
    return output;
}

void ReadBlockConfigWizard::fillBlockStructList()
{
    d->blockStructList.append({BlockFuel, nullptr, tr("Charakterystyka paliwa")});
    d->blockStructList.append({BlockDrivers, nullptr, tr("Identyfikatory kierowców")});
    d->blockStructList.append({BlockNetworks, nullptr, tr("Sieci dozwolone")});
}

void ReadBlockConfigWizard::fillBlockStateMap()
{
    d->blockStateMap[BlockFuel] = false;
    d->blockStateMap[BlockDrivers] = false;
    d->blockStateMap[BlockNetworks] = false;
}

void ReadBlockConfigWizard::createBlockConfigChoseDialog()
{
    // A further run after a result of 0 leaves the earlier dialogs to their parent.
    if (!d->parentWidget) {
        for (QWidget *dialog :
             {static_cast<QWidget *>(d->blockDialog), static_cast<QWidget *>(d->fileDialog)}) {
            if (dialog)
                d->unparentedDialogs.append(dialog);
        }
    }

    d->blockDialog = new QDialog(d->parentWidget);
    d->blockDialog->setWindowTitle(tr("Import konfiguracji z pliku"));

    auto *layout = new QVBoxLayout(d->blockDialog);
    layout->addWidget(new QLabel(tr("Proszę wybrać bloki konfiguracji do importu:")));
    layout->addSpacing(5);

    auto *buttonBox = new QDialogButtonBox(Qt::Horizontal, d->blockDialog);
    d->nextButton = buttonBox->addButton(tr("Dalej"), QDialogButtonBox::AcceptRole);
    d->nextButton->setEnabled(false);
    buttonBox->addButton(tr("Anuluj"), QDialogButtonBox::RejectRole);

    for (Private::BlockStruct &block : d->blockStructList) {
        block.checkBox = new QCheckBox(block.title);
        layout->addWidget(block.checkBox);
        // Only the fuel block can be imported; the others are shown, never offered.
        if (block.id != BlockFuel)
            block.checkBox->setEnabled(false);
        if (block.id == BlockFuel) {
            d->fuelCheckBox = block.checkBox;
            layout->addLayout(createFuelSection());
        }
        connect(block.checkBox, &QCheckBox::stateChanged, this, [this] { updateNextButton(); });
    }

    connect(buttonBox, SIGNAL(accepted()), d->blockDialog, SLOT(accept()));
    connect(buttonBox, SIGNAL(rejected()), d->blockDialog, SLOT(reject()));
    layout->addWidget(buttonBox);
}

QFormLayout *ReadBlockConfigWizard::createFuelSection()
{
    d->fuelLayout = new QFormLayout;
    // Indented so that the rows read as part of the fuel block above them.
    d->fuelLayout->setContentsMargins(24, 0, 0, 6);

    QList<QPair<QString, int>> sections;
    for (int n = 1; n <= fuelTabCount; ++n) {
        auto *combo = new QComboBox;
        d->fuelComboBoxes[n] = combo;
        sections.append({tr("Sekcja %1").arg(n), n});
        d->fuelLayout->addRow(new QLabel(tr("Zakładka paliwo %1").arg(n)), combo);
        connect(combo, SIGNAL(currentIndexChanged(int)), this, SLOT(setComboBoxFuel(int)));
    }

    // The slot already runs while the items arrive; the selections below settle it.
    for (const auto &section : std::as_const(sections)) {
        for (QComboBox *combo : std::as_const(d->fuelComboBoxes)) {
            if (combo)
                combo->addItem(section.first, QVariant(section.second));
        }
    }
    for (auto it = d->fuelComboBoxes.cbegin(); it != d->fuelComboBoxes.cend(); ++it) {
        if (*it)
            (*it)->setCurrentIndex((*it)->findData(QVariant(it.key()), Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive));
    }

    connect(d->fuelCheckBox, &QCheckBox::stateChanged, this, [this] { updateFuelRows(); });
    emit d->fuelCheckBox->stateChanged(0);
    return d->fuelLayout;
}

void ReadBlockConfigWizard::updateNextButton()
{
    if (!d->nextButton)
        return;
    bool anyChecked = false;
    for (const Private::BlockStruct &block : std::as_const(d->blockStructList))
        anyChecked = anyChecked || (block.checkBox && block.checkBox->isChecked());
    d->nextButton->setEnabled(anyChecked);
}

void ReadBlockConfigWizard::updateFuelRows()
{
    if (!d->fuelCheckBox || !d->fuelLayout)
        return;
    const bool enabled = d->fuelCheckBox->isChecked();
    for (int row = 0; row < d->fuelLayout->rowCount(); ++row) {
        for (auto role : {QFormLayout::LabelRole, QFormLayout::FieldRole}) {
            if (QLayoutItem *item = d->fuelLayout->itemAt(row, role)) {
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
    for (QComboBox *combo : std::as_const(d->fuelComboBoxes)) {
        if (!combo)
            continue;
        const int value = combo->currentData(Qt::UserRole).toInt();
        if (taken.contains(value))
            taken[value] = true;
    }

    for (QComboBox *combo : std::as_const(d->fuelComboBoxes)) {
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
    for (auto it = d->blockStateMap.begin(); it != d->blockStateMap.end(); ++it) {
        for (const Private::BlockStruct &block : std::as_const(d->blockStructList)) {
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
    d->fileDialog = new QFileDialog(d->parentWidget, tr("Otwórz plik z konfiguarcją"), directory,
                                    tr("Konfiguracja (*.cfg)"));
}

void ReadBlockConfigWizard::setFilePath()
{
    if (!d->fileDialog)
        return;
    const QStringList files = d->fileDialog->selectedFiles();
    d->filePath = files.isEmpty() ? QString() : files.first();
}

void ReadBlockConfigWizard::clear()
{
    if (d->blockDialog) {
        delete d->blockDialog;
        d->blockDialog = nullptr;
        d->nextButton = nullptr;
        for (Private::BlockStruct &block : d->blockStructList)
            block.checkBox = nullptr;
        for (auto it = d->blockStateMap.begin(); it != d->blockStateMap.end(); ++it)
            it.value() = false;
    }
    if (d->fileDialog) {
        delete d->fileDialog;
        d->fileDialog = nullptr;
        d->filePath.clear();
    }
}
