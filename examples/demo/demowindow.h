// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/form/formbinder.h"

#include <QMainWindow>

class DemoTable;
class DeviceMenu;
class FormUndo;
class ParameterBrowser;
class QComboBox;
class QLabel;
class QSpinBox;
class QTabWidget;
class QToolBar;

// The demo configurator: a page per data group of the device, a bar to choose the
// configuration version, hardware and licence level, "Zapisz" through the review of the
// changes, "Przywróć", undo and redo, and the question before unsaved changes are lost.
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
    bool save();
    void revert();
    void showSummary();
    void versionChosen(int index);
    void licenceChosen(int level);

private:
    void buildPages();
    void addUndo(QToolBar *bar);
    int hardwareId() const;
    QStringList renderReview(const QString &dir);

    DemoTable *table;
    QTabWidget *tabs;
    QComboBox *versionBox;
    QComboBox *hardwareBox;
    QSpinBox *licenceBox;
    QLabel *summary;
    DeviceMenu *deviceMenu;
    FormBinder binder;
    ParameterBrowser *browser = nullptr;
    FormUndo *undo = nullptr;
};
