#include "tests/support/anycontrol.h"

#include "telecfg/collections/cfglistwidget.h"
#include "telecfg/collections/cfgtablewidget.h"
#include "telecfg/controls/cfgcheckbox.h"

QStringList anyControlKinds()
{
    return {QStringLiteral("checkbox"), QStringLiteral("list"), QStringLiteral("table")};
}

AnyControl makeAnyControl(const QString &kind)
{
    if (kind == QLatin1String("checkbox"))
        return makeAnyControl<CfgCheckBox>();
    if (kind == QLatin1String("list"))
        return makeAnyControl<CfgListWidget>();
    if (kind == QLatin1String("table"))
        return makeAnyControl<CfgTableWidget>();
    qFatal("unknown control kind %s", qPrintable(kind));
    return {};
}
