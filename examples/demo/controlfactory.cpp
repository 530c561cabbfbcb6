// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "controlfactory.h"
#include "collectionpanel.h"

#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"

namespace {
QWidget *createWidget(int ref, const ParameterTable::Presentation &parameter, ParameterTable *table,
                      QWidget *parent)
{
    const QString &kind = parameter.control;
    if (kind == QLatin1String("checkbox")) {
        auto *box = new CfgCheckBox(parent);
        box->setText(parameter.text);
        return box;
    }
    if (kind == QLatin1String("radiobutton")) {
        auto *button = new CfgRadioButton(parent);
        button->setText(parameter.text);
        return button;
    }
    if (kind == QLatin1String("combobox"))
        return new CfgComboBox(parent);
    if (kind == QLatin1String("lineedit"))
        return new CfgLineEdit(parent);
    if (kind == QLatin1String("spinbox"))
        return new CfgSpinBox(parent);
    if (kind == QLatin1String("doublespinbox")) {
        auto *box = new CfgDoubleSpinBox(parent);
        box->setDecimals(parameter.decimals); // the host's choice, not the library's
        return box;
    }
    if (kind == QLatin1String("list") || kind == QLatin1String("table"))
        return new CollectionPanel(ref, parameter, table, parent);
    return nullptr;
}
} // namespace

QWidget *createControl(int ref, const ParameterTable::Presentation &parameter,
                       ParameterTable *table, QWidget *parent)
{
    QWidget *widget = createWidget(ref, parameter, table, parent);
    // A collection panel names its editor and its buttons itself.
    if (widget && widget->objectName().isEmpty())
        widget->setObjectName(QStringLiteral("cfg_%1").arg(ref));
    return widget;
}
