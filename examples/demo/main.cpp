// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// telecfg-demo: a small configurator over a sample device table, showing every bound
// control of the library at work.
#include "demotable.h"
#include "demowindow.h"

#include "telecfg/controls/statecolours.h"
#include "telecfg/translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPalette>
#include <QStyle>
#include <QTranslator>
#include <cstdio>

namespace {
// A dark palette as desktops in dark mode give one: light text on dark backgrounds.
void useDarkPalette()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::AlternateBase, QColor(0x42, 0x42, 0x42));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::ButtonText, Qt::white);
    dark.setColor(QPalette::ToolTipBase, QColor(0x2a, 0x2a, 0x2a));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    dark.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x2a, 0x82, 0xda));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(0x7f, 0x7f, 0x7f));
    QApplication::setPalette(dark);
}
} // namespace

int main(int argc, char **argv)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Scaled to the screen, with the images' sharp @2x variants; Qt 6 always does both.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
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
    const QCommandLineOption langOption(
        QStringLiteral("lang"),
        QStringLiteral("Language of the library's texts: en or pl (default: the system's)."),
        QStringLiteral("LANG"));
    const QCommandLineOption darkOption(
        QStringLiteral("dark"), QStringLiteral("Show the demo in a dark palette (Fusion style)."));
    const QCommandLineOption darkStatesOption(
        QStringLiteral("dark-states"),
        QStringLiteral("Paint the controls' states in the library's dark colours."));
    parser.addOption(tableOption);
    parser.addOption(screenshotOption);
    parser.addOption(langOption);
    parser.addOption(darkOption);
    parser.addOption(darkStatesOption);
    parser.process(app);
    if (parser.isSet(darkOption))
        useDarkPalette();
    if (parser.isSet(darkStatesOption))
        setStateColours(StateColours::Dark);

    // The library's texts are Polish; any other language comes from its embedded catalogues,
    // installed before the first of its widgets or its country table is made.
    telecfgInitTranslations();
    QTranslator translator;
    const QLocale language =
        parser.isSet(langOption) ? QLocale(parser.value(langOption)) : QLocale::system();
    if (language.language() != QLocale::Polish) {
        if (translator.load(language, QStringLiteral("telecfg"), QStringLiteral("_"),
                            QStringLiteral(":/telecfg/translations")))
            QApplication::installTranslator(&translator);
        else if (parser.isSet(langOption)) {
            std::fprintf(stderr,
                         "telecfg-demo: no translation for --lang %s; there are en and pl.\n",
                         qPrintable(parser.value(langOption)));
            return 2;
        }
    }

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
