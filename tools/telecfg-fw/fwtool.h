#pragma once

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

    int fail(int status, const QString &message);
    bool readFile(const QString &path, QByteArray &content);
    bool writeFile(const QString &path, const QByteArray &content);
    static QString reason(int code, int hw1, int hw2);
    int readAsHost(const QByteArray &file, const QString &hw1Option, QByteArray &result, int &hw1,
                   int &hw2);

    QTextStream out{stdout};
    QTextStream err{stderr};
};
