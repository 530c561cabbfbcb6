// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// telecfg-demo: a small configurator over a sample device table, showing every bound
// control of the library at work.
#include "demotable.h"
#include "demowindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("telecfg-demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Demo configurator of telecfg"));
    parser.addHelpOption();
    const QCommandLineOption tableOption(
        QStringLiteral("table"), QStringLiteral("Load the device table from FILE (JSON)."),
        QStringLiteral("FILE"), QStringLiteral(":/demo/sample-table.json"));
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"),
        QStringLiteral("Render every page to PNG files in DIR and exit."), QStringLiteral("DIR"));
    parser.addOption(tableOption);
    parser.addOption(screenshotOption);
    parser.process(app);

    DemoTable table;
    QString error;
    if (!table.load(parser.value(tableOption), &error)) {
        std::fprintf(stderr, "telecfg-demo: %s\n", qPrintable(error));
        return 2;
    }
    DemoWindow window(&table);
    if (parser.isSet(screenshotOption)) {
        const QStringList files = window.renderPages(parser.value(screenshotOption));
        for (const QString &file : files)
            std::printf("%s\n", qPrintable(file));
        return files.isEmpty() ? 1 : 0;
    }
    window.show();
    return app.exec();
}
