#include "tests/support/anycontrol.h"

#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"

QStringList anyControlKinds()
{
    return {QStringLiteral("checkbox"),      QStringLiteral("combobox"),
            QStringLiteral("lineedit"),      QStringLiteral("spinbox"),
            QStringLiteral("doublespinbox"), QStringLiteral("radiobutton")};
}

AnyControl makeAnyControl(const QString &kind)
{
    if (kind == QLatin1String("checkbox"))
        return makeAnyControl<CfgCheckBox>();
    if (kind == QLatin1String("combobox"))
        return makeAnyControl<CfgComboBox>();
    if (kind == QLatin1String("lineedit"))
        return makeAnyControl<CfgLineEdit>();
    if (kind == QLatin1String("spinbox"))
        return makeAnyControl<CfgSpinBox>();
    if (kind == QLatin1String("doublespinbox"))
        return makeAnyControl<CfgDoubleSpinBox>();
    if (kind == QLatin1String("radiobutton"))
        return makeAnyControl<CfgRadioButton>();
    qFatal("unknown control kind %s", qPrintable(kind));
    return {};
}
