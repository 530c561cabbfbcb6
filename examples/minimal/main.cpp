// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "ui_form.h"
#include <QApplication>
#include <QCommandLineParser>
#include <telecfg/telecfg.h>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addPositionalArgument("table", "JSON parameter table, table.json beside me", "[table]");
    options.addOption({"screenshot", "renders the form to <file> and ends", "file"});
    options.process(app);
    const QString path =
        options.positionalArguments().value(0, app.applicationDirPath() + "/table.json");
    ParameterTable table;
    if (QString error; !table.loadJsonFile(path, &error))
        return qCritical("telecfg-minimal: %s", qPrintable(error)), 2;
    initDefaultImages();
    QWidget window;
    Ui::Form ui;
    ui.setupUi(&window);
    FormBinder binder;
    for (const FormBinder::Problem &problem : binder.bind(&window, &table))
        qWarning("telecfg-minimal: %s", qPrintable(problem.text()));
    binder.refresh(1);
    const auto save = [&] { // the user reviews the changes, then they are written to the file
        return ChangeReview(&table, &window).exec() && table.saveJsonFile(path);
    };
    QObject::connect(binder.state(), &FormState::modifiedChanged, ui.save, &QWidget::setEnabled);
    QObject::connect(ui.save, &QPushButton::clicked, save);
    QObject::connect(ui.revert, &QPushButton::clicked, binder.state(), &FormState::revert);
    ChangeReview::askBeforeClosing(&window, &table, save);
    window.show();
    if (options.isSet("screenshot"))
        return window.grab().save(options.value("screenshot")) ? 0 : 1;
    return app.exec();
}
