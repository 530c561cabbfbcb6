// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tools/telecfg-fw/fwtool.h"

#include <QLocale>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("telecfg-fw"));
    // English by default; the user's language where the tool has a catalogue for it.
    QTranslator translator;
    if (translator.load(QLocale::system(), QStringLiteral("telecfg-fw"), QStringLiteral("_"),
                        QStringLiteral(":/telecfg-fw/translations")))
        QCoreApplication::installTranslator(&translator);
    return FwTool().run(QCoreApplication::arguments());
}
