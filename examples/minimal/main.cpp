// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// telecfg-minimal [TABLE.json] [--screenshot FILE.png]: a ready table loaded from JSON, a
// designed form (controls named cfg_<number>) bound in one call, Save through the review of
// the changes, Revert, and the question before closing with unsaved changes.
#include "ui_form.h"

#include <telecfg/config/parametertable.h>
#include <telecfg/form/changereview.h>
#include <telecfg/form/formbinder.h>
#include <telecfg/form/formstate.h>
#include <telecfg/images/defaultimages.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addPositionalArgument("table", "the parameter table, JSON");
    options.addOption({"screenshot", "renders the form to <file> and ends", "file"});
    options.process(app);
    const QString path = options.positionalArguments().value(0, ":/minimal/table.json");
    ParameterTable table;
    QFile file(path);
    QString error;
    if (!file.open(QIODevice::ReadOnly))
        error = file.errorString();
    else if (table.loadJson(file.readAll(), &error))
        error.clear();
    if (!error.isEmpty()) {
        std::fprintf(stderr, "telecfg-minimal: %s: %s\n", qPrintable(path), qPrintable(error));
        return 2;
    }
    initDefaultImages();
    QWidget window;
    Ui::Form ui;
    ui.setupUi(&window);
    FormBinder binder;
    for (const FormBinder::Problem &problem : binder.bind(&window, &table))
        qWarning("telecfg-minimal: %s", qPrintable(problem.text()));
    binder.refresh(1);
    const auto save = [&] {
        ChangeReview review(&table, &window);
        if (review.exec() != QDialog::Accepted)
            return false;
        table.save();
        QFile out(path);
        return path.startsWith(':') ||
               (out.open(QIODevice::WriteOnly) && out.write(table.saveJson()) > 0);
    };
    ui.save->setEnabled(false);
    QObject::connect(binder.state(), &FormState::modifiedChanged, ui.save, &QWidget::setEnabled);
    QObject::connect(ui.save, &QPushButton::clicked, save);
    QObject::connect(ui.revert, &QPushButton::clicked, binder.state(), &FormState::revert);
    ChangeReview::askBeforeClosing(&window, &table, save);
    window.show();
    if (options.isSet("screenshot"))
        return window.grab().save(options.value("screenshot")) ? 0 : 1;
    return app.exec();
}
