// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// telecfg-minimal: the shortest real host. A ready parameter table is loaded from JSON, a
// form made in Qt Designer (form.ui, controls named cfg_<parameter number>) is bound in one
// call, and "Zapisz" / "Przywróć" save and revert.
//
//     telecfg-minimal [TABLE.json] [--screenshot FILE.png]
#include "ui_form.h"

#include <telecfg/config/parametertable.h>
#include <telecfg/form/formbinder.h>
#include <telecfg/images/defaultimages.h>

#include <QApplication>
#include <QFile>
#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    initDefaultImages(); // the library's check box, radio button and arrow images
    QStringList args = app.arguments().mid(1);
    const int shot = args.indexOf(QStringLiteral("--screenshot"));
    const QString screenshot = shot >= 0 ? args.value(shot + 1) : QString();
    if (shot >= 0)
        args.erase(args.begin() + shot, args.begin() + qMin(shot + 2, int(args.size())));
    const QString path = args.value(0, QStringLiteral(":/minimal/table.json"));

    // The table: records, stored and current values, validity; the host reads the file.
    ParameterTable table;
    QFile file(path);
    QString error = file.errorString();
    if (!file.open(QIODevice::ReadOnly) || !table.loadJson(file.readAll(), &error)) {
        std::fprintf(stderr, "telecfg-minimal: %s: %s\n", qPrintable(path), qPrintable(error));
        return 2;
    }

    // The form: every cfg_<number> control bound, with its buddy label, in one call.
    QWidget window;
    Ui::Form ui;
    ui.setupUi(&window);
    FormBinder binder;
    for (const FormBinder::Problem &problem : binder.bind(&window, &table))
        std::fprintf(stderr, "telecfg-minimal: %s\n", qPrintable(problem.text()));
    const int hardwareId = 1;
    binder.refresh(hardwareId);

    // After an edit the whole form follows (colours, the other radio choice), once the
    // control has finished its own edit.
    QObject::connect(
        &table, &ParameterTable::valueChanged, &binder, [&binder]() { binder.refresh(); },
        Qt::QueuedConnection);
    QObject::connect(ui.save, &QPushButton::clicked, [&]() {
        table.save(); // the current values become the stored ones
        QFile out(path);
        if (!path.startsWith(QLatin1Char(':')) && out.open(QIODevice::WriteOnly))
            out.write(table.saveJson());
        binder.refresh();
    });
    QObject::connect(ui.revert, &QPushButton::clicked, [&]() {
        table.revert();
        binder.rebind(); // binding is what loads a value into a control
        binder.refresh();
    });

    window.show();
    if (!screenshot.isEmpty()) {
        QApplication::processEvents();
        return window.grab().save(screenshot) ? 0 : 1;
    }
    return app.exec();
}
