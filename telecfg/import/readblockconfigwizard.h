// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

class QCheckBox;
class QComboBox;
class QDialog;
class QFileDialog;
class QFormLayout;
class QPushButton;
class QWidget;

// Asks which configuration blocks to import, how the file's four fuel sections go onto the
// four fuel tabs, and which file to take. It reads no file: the host gets the choices and
// the path from getOutput and does the import itself.
//
// exec returns 0 when blocks were chosen and a file accepted (both dialogs stay alive,
// hidden, so that getOutput can read them), 1 when the block choice was cancelled and 2
// when the file dialog was; after 1 and 2 both dialogs are gone.
class TELECFG_EXPORT ReadBlockConfigWizard : public QObject
{
    Q_OBJECT

public:
    // Block ids; hosts rely on these numbers.
    enum BlockId {
        BlockFuel = 0,
        BlockDrivers = 1,
        BlockNetworks = 2,
    };

    struct Output
    {
        // Keys 0, 1, 2: whether the block's box was ticked when the user went on.
        QMap<int, bool> blockStates;
        // Keys 1 to 4 (fuel tabs): the section chosen for the tab, 1 to 4, or 0 when the tab
        // has no choice. Filled whether or not the fuel block was chosen.
        QMap<int, int> fuelSections;
        QString filePath;
    };

    ReadBlockConfigWizard(const QString &filePath, QWidget *parent);
    ~ReadBlockConfigWizard() override;

    // Runs the block choice and then the file dialog, starting in `directory`.
    int exec(const QString &directory);
    // The result of the last run that returned 0.
    Output getOutput();

private slots:
    void setComboBoxFuel(int newIndex);

private:
    struct BlockStruct
    {
        qint32 id;
        QPointer<QCheckBox> checkBox;
        QString title;
    };

    void fillBlockStructList();
    void fillBlockStateMap();
    void createBlockConfigChoseDialog();
    QFormLayout *createFuelSection();
    void setBlockStateList();
    void createFileDialog(const QString &directory);
    void setFilePath();
    void clear();
    void updateNextButton();
    void updateFuelRows();

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
