#include "tests/support/anycontrol.h"

#include "telecfg/controls/cfgcheckbox.h"

QStringList anyControlKinds()
{
    return {QStringLiteral("checkbox")};
}

AnyControl makeAnyControl(const QString &kind)
{
    if (kind == QLatin1String("checkbox"))
        return makeAnyControl<CfgCheckBox>();
    qFatal("unknown control kind %s", qPrintable(kind));
    return {};
}
