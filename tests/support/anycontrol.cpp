// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tests/support/anycontrol.h"

#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"

#include <QTest>

QStringList anyControlKinds()
{
    return valueControlKinds() + QStringList{QStringLiteral("list"), QStringLiteral("table")};
}

QStringList valueControlKinds()
{
    return {QStringLiteral("checkbox"),      QStringLiteral("combobox"),
            QStringLiteral("lineedit"),      QStringLiteral("spinbox"),
            QStringLiteral("doublespinbox"), QStringLiteral("radiobutton")};
}

namespace {
template <class Control> AnyControl makeEditable(std::function<void(Control *)> edit)
{
    AnyControl any = makeAnyControl<Control>();
    auto *control = static_cast<Control *>(any.widget.get());
    any.userEdit = [control, edit] { edit(control); };
    return any;
}
} // namespace

AnyControl makeAnyControl(const QString &kind)
{
    if (kind == QLatin1String("checkbox"))
        return makeEditable<CfgCheckBox>([](CfgCheckBox *box) { box->click(); });
    if (kind == QLatin1String("combobox"))
        return makeEditable<CfgComboBox>(
            [](CfgComboBox *box) { box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0); });
    if (kind == QLatin1String("lineedit"))
        return makeEditable<CfgLineEdit>(
            [](CfgLineEdit *edit) { QTest::keyClick(edit, Qt::Key_1); });
    if (kind == QLatin1String("spinbox"))
        return makeEditable<CfgSpinBox>([](CfgSpinBox *box) { QTest::keyClick(box, Qt::Key_Up); });
    if (kind == QLatin1String("doublespinbox"))
        return makeEditable<CfgDoubleSpinBox>(
            [](CfgDoubleSpinBox *box) { QTest::keyClick(box, Qt::Key_Up); });
    if (kind == QLatin1String("radiobutton"))
        return makeEditable<CfgRadioButton>([](CfgRadioButton *button) { button->click(); });
    if (kind == QLatin1String("list"))
        return makeAnyControl<CfgListWidget>();
    if (kind == QLatin1String("table"))
        return makeAnyControl<CfgTableWidget>();
    qFatal("unknown control kind %s", qPrintable(kind));
    return {};
}
