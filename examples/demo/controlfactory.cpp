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
template <class Control>
FormControl makeControl(MainConfigIFace *table, int ref, QWidget *label, Control *control)
{
    FormControl form;
    form.widget = control;
    const QList<QWidget *> related = label ? QList<QWidget *>{label} : QList<QWidget *>{};
    form.bind = [=]() { control->setReference(table, ref, label, related); };
    form.refresh = [=](int hardwareId) { control->updateControl(hardwareId); };
    return form;
}
} // namespace

FormControl createFormControl(int ref, const ParameterTable::Presentation &parameter,
                              MainConfigIFace *table, QWidget *label, QWidget *parent)
{
    const QString &kind = parameter.control;
    if (kind == QLatin1String("checkbox")) {
        auto *box = new CfgCheckBox(parent);
        box->setText(parameter.text);
        return makeControl(table, ref, label, box);
    }
    if (kind == QLatin1String("radiobutton")) {
        auto *button = new CfgRadioButton(parent);
        button->setText(parameter.text);
        return makeControl(table, ref, label, button);
    }
    if (kind == QLatin1String("combobox"))
        return makeControl(table, ref, label, new CfgComboBox(parent));
    if (kind == QLatin1String("lineedit"))
        return makeControl(table, ref, label, new CfgLineEdit(parent));
    if (kind == QLatin1String("spinbox"))
        return makeControl(table, ref, label, new CfgSpinBox(parent));
    if (kind == QLatin1String("doublespinbox")) {
        auto *box = new CfgDoubleSpinBox(parent);
        box->setDecimals(parameter.decimals); // the host's choice, not the library's
        return makeControl(table, ref, label, box);
    }
    if (kind == QLatin1String("list") || kind == QLatin1String("table"))
        return (new CollectionPanel(ref, parameter, table, label, parent))->formControl();
    return {};
}
