// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QRadioButton>

// A radio button standing for one choice of a parameter: the value it writes when pressed
// is the record's `minimum`. For type 4 it is checked when `value` equals that choice.
// A modified parameter marks a checked button yellow; its look ignores the enabled state.
class TELECFG_EXPORT CfgRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit CfgRadioButton(QWidget *parent = nullptr);
    ~CfgRadioButton() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setError(bool error);
    bool isError();
    // Checks the button when `value` is its choice (type 4 only), then refreshes.
    void setSelected(int value);

public slots:
    void setEnabled(bool bEnable);
    void setHidden(bool hidden);

private slots:
    void change();

private:
    void drawBitmap(bool enabled, bool modified);

    BoundControl bound;
};
