// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/config/parametertable.h"
#include "telecfg/form/valuetext_p.h"

#include <QCoreApplication>
#include <QLabel>

namespace valuetext {
QString name(MainConfigIFace &table, int ref)
{
    if (auto *label = qobject_cast<QLabel *>(table.object(ref).label)) {
        QString text = label->text().remove(QLatin1Char('&')).trimmed();
        if (text.endsWith(QLatin1Char(':')))
            text.chop(1);
        if (!text.isEmpty())
            return text;
    }
    if (auto *ready = dynamic_cast<ParameterTable *>(&table)) {
        const ParameterTable::Presentation presentation = ready->presentation(ref);
        if (!presentation.label.isEmpty())
            return presentation.label;
        if (!presentation.text.isEmpty())
            return presentation.text;
    }
    return QCoreApplication::translate("ValueText", "Parametr %1").arg(ref);
}

QString text(MainConfigIFace &table, int ref, const QVariant &value)
{
    const QString plain = value.toString();
    for (const auto &option : std::as_const(table.object(ref).options))
        if (option.second == plain)
            return option.first;
    return plain;
}
} // namespace valuetext
