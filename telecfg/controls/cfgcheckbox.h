// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QCheckBox>

// A check box bound to one flag parameter. Type 22 holds the flag as an int 0/1,
// every other type as a bool. Painted grey or yellow (modified), by enabled state.
class TELECFG_EXPORT CfgCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CfgCheckBox(QWidget *parent = nullptr);
    ~CfgCheckBox() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void setError(bool error);
    bool isError();
    int getReference();

public slots:
    void setEnabled(bool bEnable);
    void updateEnableState(bool state);
    void setHidden(bool hidden);

private slots:
    void changed(int state);

private:
    void drawBitmap(bool enabled, bool modified);

    BoundControl bound;
};
