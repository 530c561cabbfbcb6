// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QLineEdit>

// A line edit bound to one parameter edited as text. The record's `type` chooses a
// validator (decimal ones follow the system locale's separator); every edit is written
// as a QString. Red when the host says invalid or `error` is set, which also blocks edits.
class TELECFG_EXPORT CfgLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CfgLineEdit(QWidget *parent = nullptr);
    ~CfgLineEdit() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setEnabled(bool bEnable);
    void setHidden(bool hidden);
    void setError(bool error);
    bool isError();
    // Shows `text` without writing it to the host.
    void displayText(QString text);
    // The widget's own getter of the same name stays reachable.
    using QLineEdit::displayText;

public slots:
    // The text then counts as the user's edit.
    void setText(const QString &text);

private slots:
    void updateText(const QString &text);

private:
    void installValidator(int type);

    BoundControl bound;
};
