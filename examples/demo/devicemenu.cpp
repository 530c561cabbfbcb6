// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "devicemenu.h"

#include "telecfg/dialogs/cmddialog.h"
#include "telecfg/dialogs/dualinputdlg.h"
#include "telecfg/dialogs/skipreaddatadialog.h"
#include "telecfg/dialogs/statuslabel.h"
#include "telecfg/import/readblockconfigwizard.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QtMath>

namespace {
QHash<int, QString> sampleCommands()
{
    return {{0, QStringLiteral("getver")},   {1, QStringLiteral("getgps")},
            {2, QStringLiteral("getio")},    {3, QStringLiteral("setdigout 1")},
            {4, QStringLiteral("getfuel")},  {5, QStringLiteral("cpureset")},
            {8, QStringLiteral("btgetlist")}};
}

bool saveGrab(QWidget *widget, const QString &file, QStringList *files)
{
    if (!widget->grab().save(file))
        return false;
    files->append(file);
    return true;
}
} // namespace

DeviceMenu::DeviceMenu(QMainWindow *mainWindow) : QObject(mainWindow), window(mainWindow)
{
    QMenu *menu = window->menuBar()->addMenu(tr("Urządzenie"));
    menu->addAction(tr("Zdalny rozkaz…"), this, &DeviceMenu::remoteCommand);
    menu->addAction(tr("Odczyt wybranych danych…"), this, &DeviceMenu::selectiveReading);
    menu->addAction(tr("Import konfiguracji…"), this, &DeviceMenu::importConfiguration);
    menu->addAction(tr("Punkt kalibracji paliwa…"), this, &DeviceMenu::calibrationPoint);

    voltage = new StatusLabel(window);
    satellites = new StatusLabel(window);
    signal = new StatusLabel(window);
    lastAnswer = new StatusLabel(window);
    for (StatusLabel *label : {lastAnswer, voltage, satellites, signal})
        window->statusBar()->addPermanentWidget(label);
    clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &DeviceMenu::tick);
    clock->start(1500);
    tick();
}

void DeviceMenu::tick()
{
    // A deterministic drive cycle, so screenshots come out the same every time.
    ++ticks;
    const double volts = 12.4 + 1.6 * qSin(ticks / 3.0);
    voltage->setValue(QStringLiteral("%1 V").arg(volts, 0, 'f', 1),
                      volts < 11.5
                          ? StatusLabel::StateRed
                          : (volts < 12.0 ? StatusLabel::StateOrange : StatusLabel::StateGreen),
                      false, 0);
    const int sats = 3 + (ticks * 5) % 8;
    satellites->setValue(tr("GPS: %1 sat.").arg(sats),
                         sats < 4 ? StatusLabel::StateYellow : StatusLabel::StateGreen, true, 0);
    // The same text and state again: the label does not flash for a repeated value.
    signal->setValue(tr("GSM: -71 dBm"), StatusLabel::StateGreen, true, 0);
}

void DeviceMenu::report(const QString &text)
{
    lastAnswer->setValue(text, StatusLabel::StateNone, true, 3000);
}

void DeviceMenu::remoteCommand()
{
    QHash<int, QString> commands = sampleCommands();
    CmdDialog dialog(window, commands);
    if (dialog.exec() == QDialog::Accepted)
        report(tr("Wysłano: %1").arg(dialog.getCmd()));
}

void DeviceMenu::selectiveReading()
{
    SkipReadDataDialog dialog(window, skipBt, skipFuel, skipCan, skipConf, skipDallas);
    if (dialog.exec() != QDialog::Accepted)
        return;
    skipBt = dialog.getSkipBt();
    skipFuel = dialog.getSkipFuel();
    skipCan = dialog.getSkipCan();
    skipConf = dialog.getSkipConf();
    skipDallas = dialog.getSkipDallas();
    QStringList skipped;
    if (skipBt)
        skipped << QStringLiteral("Bluetooth");
    if (skipFuel)
        skipped << tr("paliwo");
    if (skipCan)
        skipped << QStringLiteral("CAN");
    if (skipConf)
        skipped << tr("konfiguracja");
    if (skipDallas)
        skipped << QStringLiteral("Dallas");
    report(skipped.isEmpty() ? tr("Odczyt wszystkich danych")
                             : tr("Pominięte: %1").arg(skipped.join(QStringLiteral(", "))));
}

void DeviceMenu::importConfiguration()
{
    ReadBlockConfigWizard wizard(QString(), window);
    if (wizard.exec(QDir::homePath()) != 0) {
        report(tr("Import przerwany"));
        return;
    }
    const ReadBlockConfigWizard::Output output = wizard.getOutput();
    QStringList blocks;
    for (auto it = output.blockStates.begin(); it != output.blockStates.end(); ++it)
        if (it.value())
            blocks << QString::number(it.key());
    report(tr("Import bloków %1 z %2").arg(blocks.join(QStringLiteral(", ")), output.filePath));
}

void DeviceMenu::calibrationPoint()
{
    DualInputDlg dialog(1, window);
    dialog.setWindowTitle(tr("Punkt kalibracji paliwa"));
    dialog.setLabels(tr("Objętość [l]"), tr("Numer punktu"));
    dialog.SetValue1(QLocale::system().toString(12.5, 'f', 1));
    if (dialog.exec() == QDialog::Accepted)
        report(tr("Punkt %1: %2 l").arg(dialog.getValue2(), dialog.getValue1()));
}

QStringList DeviceMenu::renderDialogs(const QString &dir)
{
    QStringList files;
    const QDir out(dir);
    QHash<int, QString> commands = sampleCommands();
    {
        CmdDialog dialog(window, commands);
        dialog.show();
        saveGrab(&dialog, out.filePath(QStringLiteral("dialog-command.png")), &files);
    }
    {
        SkipReadDataDialog dialog(window, skipBt, skipFuel, skipCan, skipConf, skipDallas);
        dialog.show();
        saveGrab(&dialog, out.filePath(QStringLiteral("dialog-selective-reading.png")), &files);
    }
    {
        DualInputDlg dialog(1, window);
        dialog.setLabels(tr("Objętość [l]"), tr("Numer punktu"));
        dialog.SetValue1(QLocale::system().toString(12.5, 'f', 1));
        dialog.show();
        saveGrab(&dialog, out.filePath(QStringLiteral("dialog-calibration-point.png")), &files);
    }
    {
        // The wizard's first step is modal: grab it from inside its own event loop.
        ReadBlockConfigWizard wizard(QString(), window);
        QTimer::singleShot(100, this, [&]() {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                saveGrab(modal, out.filePath(QStringLiteral("dialog-import.png")), &files);
                modal->close();
            }
        });
        wizard.exec(QDir::homePath());
    }
    return files;
}
