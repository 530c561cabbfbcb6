// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QMainWindow;
class QMenu;
class QTimer;
class StatusLabel;

// The demo's "Urządzenie" menu (remote command, selective reading, configuration import,
// a calibration point) and a status bar of live values, simulated as a connected device
// would send them.
class DeviceMenu : public QObject
{
    Q_OBJECT

public:
    explicit DeviceMenu(QMainWindow *window);

    // Renders each dialog to DIR/dialog-*.png; returns the files written.
    QStringList renderDialogs(const QString &dir);

private slots:
    void remoteCommand();
    void selectiveReading();
    void importConfiguration();
    void calibrationPoint();
    void tick();

private:
    void report(const QString &text);

    QMainWindow *window;
    StatusLabel *voltage;
    StatusLabel *satellites;
    StatusLabel *signal;
    StatusLabel *lastAnswer;
    QTimer *clock;
    int ticks = 0;
    // What the next selective reading starts from: the user's last choice.
    bool skipBt = false, skipFuel = false, skipCan = true, skipConf = false, skipDallas = false;
};
