// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

class CommandLine;
class FileReport;

// The commands of telecfg-fw. Every failure kind has an exit status of its own; results go
// to standard output, every message about a fault to standard error.
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

    // What info prints of a file: the summary, and the page table asked for with --pages.
    static QString summary(const QString &path, const FileReport &report);
    static QString pageTable(const FileReport &report);
    // What verify makes of a file: the exit status and the line it prints (to standard
    // output for a sound file, standard error otherwise). expectedHw1 < 0: the file's own.
    struct Verdict
    {
        int status = Success;
        QString text;
    };
    static Verdict verdict(const QString &path, const FileReport &report, int expectedHw1);
    // Of two verify statuses the one that stands for the worse file.
    static int worse(int a, int b);

private:
    int pack(const QStringList &arguments);
    int info(const QStringList &arguments);
    int unpack(const QStringList &arguments);
    int verify(const QStringList &arguments);

    // Parses a command's arguments and prints its help when asked. Returns -1 to go on, or
    // the exit status to leave with.
    int begin(CommandLine &line, const QStringList &arguments, const QString &usage,
              const QString &description, int minFiles, int maxFiles);
    int fail(int status, const QString &message);
    void note(const QString &message);
    int readFile(const QString &path, QByteArray &content);
    int writeFile(const QString &inputPath, const QString &path, const QByteArray &content);
    // Reads --hw1; -1 when it is not given, -2 (the failure printed) when it is no number.
    int expectedHw1(const CommandLine &line);

    static QString usageText();
    static QString reason(int code, int hw1, int hw2);
    static QStringList failures(const FileReport &report);

    QString command;
    bool quiet = false;
    QTextStream out{stdout};
    QTextStream err{stderr};
};
