#include "controlfactory.h"

#include "telecfg/controls/cfgcheckbox.h"

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

FormControl createFormControl(const QString &kind, MainConfigIFace *table, int ref,
                              const QString &text, QWidget *label, QWidget *parent)
{
    if (kind == QLatin1String("checkbox")) {
        auto *box = new CfgCheckBox(parent);
        box->setText(text);
        return makeControl(table, ref, label, box);
    }
    return {};
}
