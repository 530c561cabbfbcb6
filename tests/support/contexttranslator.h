// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

// A translator that marks every text with its translation context, "[Context]text", so a
// test sees both the exact source text and the class it was translated under.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char * = nullptr,
                      int = -1) const override
    {
        return QStringLiteral("[%1]%2").arg(QString::fromUtf8(context),
                                            QString::fromUtf8(sourceText));
    }
    bool isEmpty() const override { return false; }
};
