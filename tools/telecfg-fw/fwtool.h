// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

// The commands of telecfg-fw. Every failure kind has an exit status of its own.
class FwTool
{
    Q_DECLARE_TR_FUNCTIONS(FwTool)

public:
    enum Exit {
        Success = 0,
        BadArguments = 1,
        Unreadable = 2,
        Unwritable = 3,
        TooLarge = 4,
        NotVerified = 6,
        // A reader's return code n (1 to 5) leaves with FileCode + n.
        FileCode = 10,
    };

    // arguments[0] is the program name, arguments[1] the command.
    int run(const QStringList &arguments);

private:
    int pack(const QStringList &arguments);
    int info(const QStringList &arguments);
    int unpack(const QStringList &arguments);
    int verify(const QStringList &arguments);

    // What the configurator takes from a file, with the reader's code and hardware words.
    struct HostRead
    {
        int code = 0;
        int hw1 = 0;
        int hw2 = 0;
        QByteArray result;
    };

    // Prints the reason and gives the status back.
    int fail(int status, const QString &message);
    // These return -1 to go on, or the exit status to leave with (the reason printed).
    int begin(QCommandLineParser &parser, const QStringList &arguments,
              const QCommandLineOption *output, QByteArray *input);
    int readInput(const QCommandLineParser &parser, QByteArray &content);
    int readAsHost(const QCommandLineParser &parser, const QByteArray &file, HostRead &read);

    bool writeFile(const QString &path, const QByteArray &content);
    static QCommandLineOption expectedHw1Option();
    static QString reason(int code, int hw1, int hw2);

    QTextStream out{stdout};
    QTextStream err{stderr};
};
