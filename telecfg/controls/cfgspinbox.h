// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QSpinBox>

// A spin box bound to one whole-number parameter: bounds and step from the record, read
// signed for type 21 and unsigned otherwise; every edit is written as an int. A value that
// is no multiple of `step` is written all the same and painted red.
class TELECFG_EXPORT CfgSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit CfgSpinBox(QWidget *parent = nullptr);
    ~CfgSpinBox() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setEnabled(bool bEnable);
    void setHidden(bool hidden);
    void setError(bool error);
    bool isError();

private slots:
    void updateValue(int val);

private:
    BoundControl bound;
};
