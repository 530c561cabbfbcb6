// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/form/formbinder.h"

#include <QMainWindow>

class DemoTable;
class DeviceMenu;
class ParameterBrowser;
class QComboBox;
class QLabel;
class QSpinBox;
class QTabWidget;

// The demo configurator: a page per data group of the device, a bar to choose the
// configuration version, hardware and licence level, and "Zapisz" / "Przywróć".
class DemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DemoWindow(DemoTable *table, QWidget *parent = nullptr);

    // Renders every page to DIR/NN-name.png; returns the files written.
    QStringList renderPages(const QString &dir);

public slots:
    void refresh();

private slots:
    void save();
    void revert();
    void showSummary();
    void versionChosen(int index);
    void licenceChosen(int level);

private:
    void buildPages();
    int hardwareId() const;

    DemoTable *table;
    QTabWidget *tabs;
    QComboBox *versionBox;
    QComboBox *hardwareBox;
    QSpinBox *licenceBox;
    QLabel *summary;
    DeviceMenu *deviceMenu;
    FormBinder binder;
    ParameterBrowser *browser = nullptr;
};
