// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tools/telecfg-fw/commandline.h"

CommandLine::CommandLine(QVector<Option> list) : options(std::move(list)) {}

const CommandLine::Option *CommandLine::find(const QString &name, bool isLong) const
{
    for (const Option &option : options) {
        if ((isLong ? option.longName : option.shortName) == name && !name.isEmpty())
            return &option;
    }
    return nullptr;
}

QString CommandLine::parse(const QStringList &arguments)
{
    bool onlyFiles = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (onlyFiles || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            files.append(argument);
            continue;
        }
        if (argument == QLatin1String("--")) {
            onlyFiles = true;
            continue;
        }
        const bool isLong = argument.startsWith(QLatin1String("--"));
        QString name = argument.mid(isLong ? 2 : 1);
        QString value;
        bool hasValue = false;
        if (isLong && name.contains(QLatin1Char('='))) {
            value = name.section(QLatin1Char('='), 1);
            name = name.section(QLatin1Char('='), 0, 0);
            hasValue = true;
        }
        const Option *option = find(name, isLong);
        if (!option)
            return tr("unknown option %1.").arg(argument);
        if (option->valueName.isEmpty()) {
            if (hasValue)
                return tr("option --%1 takes no value.").arg(option->longName);
            values.insert(option->longName, QString());
            continue;
        }
        if (!hasValue) {
            if (i + 1 >= arguments.size())
                return tr("option %1 needs a value (%2).").arg(argument, option->valueName);
            value = arguments.at(++i);
        }
        values.insert(option->longName, value);
    }
    return QString();
}

QString CommandLine::optionsHelp() const
{
    QStringList names;
    int width = 0;
    for (const Option &option : options) {
        QString name = option.shortName.isEmpty()
                           ? QStringLiteral("    --%1").arg(option.longName)
                           : QStringLiteral("-%1, --%2").arg(option.shortName, option.longName);
        if (!option.valueName.isEmpty())
            name += QLatin1Char(' ') + option.valueName;
        width = qMax(width, name.size());
        names.append(name);
    }
    QString text;
    for (int i = 0; i < options.size(); ++i)
        text += QStringLiteral("  %1  %2\n").arg(names.at(i), -width).arg(options.at(i).help);
    return text;
}
