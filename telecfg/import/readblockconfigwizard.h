// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <memory>

class QCheckBox;
class QComboBox;
class QDialog;
class QFileDialog;
class QFormLayout;
class QPushButton;
class QWidget;

/// Asks which configuration blocks to import, how the file's four fuel sections go onto the
/// four fuel tabs, and which file to take. It reads no file: the host gets the choices and
/// the path from getOutput and does the import itself.
///
/// exec returns 0 when blocks were chosen and a file accepted (both dialogs stay alive,
/// hidden, so that getOutput can read them), 1 when the block choice was cancelled and 2
/// when the file dialog was; after 1 and 2 both dialogs are gone.
class TELECFG_EXPORT ReadBlockConfigWizard : public QObject
{
    Q_OBJECT

public:
    /// Block ids; hosts rely on these numbers.
    enum BlockId {
        /// The fuel sensor block.
        BlockFuel = 0,
        /// The drivers block.
        BlockDrivers = 1,
        /// The mobile networks block.
        BlockNetworks = 2,
    };

    /// The user's choices from a run that returned 0.
    struct Output
    {
        /// Keys 0, 1, 2: whether the block's box was ticked when the user went on.
        QMap<int, bool> blockStates;
        /// Keys 1 to 4 (fuel tabs): the section chosen for the tab, 1 to 4, or 0 when the tab
        /// has no choice. Filled whether or not the fuel block was chosen.
        QMap<int, int> fuelSections;
        /// The file chosen.
        QString filePath;
    };

    /// Prepares the wizard; nothing is shown until exec().
    /// @param filePath the path getOutput() gives until a run chooses a file.
    /// @param parent the widget that owns this object and the dialogs; may be null, and the
    ///        dialogs of successful runs then live as long as this object.
    ReadBlockConfigWizard(const QString &filePath, QWidget *parent);
    /// Destroys the object and the dialogs it still holds.
    ~ReadBlockConfigWizard() override;

    /// Runs the block choice and then the file dialog, starting in `directory`.
    /// @param directory where the file dialog starts.
    /// @return 0 when blocks were chosen and a file accepted; 1 when the block choice was
    ///         cancelled; 2 when the file dialog was.
    int exec(const QString &directory);
    /// The result of the last run that returned 0.
    /// @return the choices, as the dialogs hold them.
    Output getOutput();

private slots:
    void setComboBoxFuel(int newIndex);

private:
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

    // The object's state, behind a pointer so that it can change within 1.x without changing
    // the class's size (docs/abi.md).
    struct Private;
    const std::unique_ptr<Private> d;
};
