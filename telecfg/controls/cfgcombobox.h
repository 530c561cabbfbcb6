// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/controls/boundcontrol.h"
#include "telecfg/telecfg_export.h"

#include <QComboBox>

// A combo box bound to one parameter whose allowed values are the record's `options`:
// key = position, `first` = shown text, `second` = the value written (as a QString).
// Yellow comes from matchesStored, red from `error`; the only control with a signal.
class TELECFG_EXPORT CfgComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CfgComboBox(QWidget *parent = nullptr);
    ~CfgComboBox() override;

    void setReference(MainConfigIFace *iface, int ref, QWidget *label,
                      QList<QWidget *> relatedWidgets);
    void updateControl(int hardwareId);
    void updateEnableState(bool state);
    void setError(bool error);
    bool isError();
    void updateColor(bool enabled);
    void updateSelection(int ref);
    void setSkip(bool skip);

public slots:
    void setEnabled(bool bEnable);
    void setHidden(bool hidden);

signals:
    void cfgComboBoxChanged();

private slots:
    void changed(const QString &text);

private:
    void selectValue(const QVariant &value);

    BoundControl bound;
    bool loading = false;
    bool skip = false;
};
