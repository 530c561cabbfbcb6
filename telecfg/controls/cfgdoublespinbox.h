// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QDoubleSpinBox>

// A spin box bound to one decimal parameter, read through the system locale (whole numbers
// for type 21). An edit that is no multiple of `step` in single precision is refused:
// painted red and not written. Written values are doubles.
class TELECFG_EXPORT CfgDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit CfgDoubleSpinBox(QWidget *parent = nullptr);
    ~CfgDoubleSpinBox() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setEnabled(bool bEnable);
    void setHidden(bool hidden);
    void setError(bool error);
    bool isError();

private slots:
    void updateValue(QString val);

private:
    BoundControl bound;
};
