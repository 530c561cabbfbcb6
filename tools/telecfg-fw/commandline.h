// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

// The options of one telecfg-fw command: "-o OUT", "--output OUT", "--output=OUT", flags,
// "--" before file names that begin with a dash. Its messages and help are the tool's own.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    struct Option
    {
        QString longName;  // without the dashes
        QString shortName; // one letter, or empty
        QString valueName; // empty for a flag
        QString help;
    };

    explicit CommandLine(QVector<Option> list);

    // Empty when the arguments fit the options, otherwise what is wrong with them.
    QString parse(const QStringList &arguments);
    bool isSet(const QString &longName) const { return values.contains(longName); }
    QString value(const QString &longName) const { return values.value(longName); }
    QStringList files;

    // The options, one to a line, their help in a column.
    QString optionsHelp() const;

private:
    const Option *find(const QString &name, bool isLong) const;

    QVector<Option> options;
    QHash<QString, QString> values;
};
