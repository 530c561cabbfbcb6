// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// What the form level costs a host per edit. "FollowUp": one edit in a form of 1000 bound
// controls over a ParameterTable and everything that follows it (the form-wide state, the
// controls of that parameter), side by side with the toolkit's widget mapper reverting 1000
// line edits. "StateAfterEdit": one edit of a table of 10,000 parameters and the form-wide
// answers (anything modified, anything invalid), side by side with the table's own full scan
// (modifiedParameters() and invalidParameters()).
#include "bench/qtbenchmark.h"
#include "bench/sidebyside.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/config/parametertypes.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgspinbox.h"
#include "telecfg/form/formbinder.h"
#include "telecfg/form/formstate.h"

#include <QDataWidgetMapper>
#include <QLineEdit>
#include <QStandardItemModel>

namespace {
constexpr int firstRef = 100;

void fill(ParameterTable &table, int size)
{
    for (int i = 0; i < size; ++i) {
        MainConfigObject record;
        record.minimum = 0u;
        record.maximum = 1000u;
        record.step = 1;
        record.value = 10u;
        table.addRecord(firstRef + i, record);
        table.setRules(firstRef + i, {0u, 1000u, -1, QString(), false});
    }
}

void BM_FollowUp(benchmark::State &state)
{
    constexpr int formSize = 1000;
    ParameterTable table;
    fill(table, formSize);
    QWidget form;
    for (int i = 0; i < formSize; ++i) {
        QWidget *control = i % 3 == 0   ? static_cast<QWidget *>(new CfgSpinBox(&form))
                           : i % 3 == 1 ? static_cast<QWidget *>(new CfgLineEdit(&form))
                                        : static_cast<QWidget *>(new CfgCheckBox(&form));
        control->setObjectName(QStringLiteral("cfg_%1").arg(firstRef + i));
    }
    FormBinder binder;
    binder.bind(&form, &table);
    binder.refresh(1);
    auto *edited = form.findChild<CfgSpinBox *>(QStringLiteral("cfg_%1").arg(firstRef));

    QStandardItemModel model(1, formSize);
    QWidget mapperForm;
    QDataWidgetMapper mapper;
    for (int i = 0; i < formSize; ++i)
        model.setData(model.index(0, i), QString::number(i));
    mapper.setModel(&model);
    for (int i = 0; i < formSize; ++i)
        mapper.addMapping(new QLineEdit(&mapperForm), i);
    mapper.toFirst();

    int value = 10;
    // The user's edit and the host's write (which also reloads the control of the parameter)
    // take turns.
    bool byHost = false;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            value = value == 10 ? 11 : 10;
            if (byHost)
                table.setValue(firstRef, uint(value));
            else
                edited->setValue(value);
            byHost = !byHost;
            benchmark::DoNotOptimize(binder.state()->isModified());
        },
        [&] { mapper.revert(); });
    sidebyside::reportTimes(state, "mapper", totals);
}
BENCHMARK(BM_FollowUp)->UseManualTime()->Unit(benchmark::kMicrosecond);

void BM_StateAfterEdit(benchmark::State &state)
{
    const int size = int(state.range(0));
    ParameterTable table;
    fill(table, size);
    FormState formState(&table);
    int value = 10;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            value = value == 10 ? 2000 : 10;
            table.setValue(firstRef + size / 2, uint(value));
            benchmark::DoNotOptimize(formState.isModified());
            benchmark::DoNotOptimize(formState.isValid());
        },
        [&] {
            benchmark::DoNotOptimize(table.modifiedParameters().isEmpty());
            benchmark::DoNotOptimize(table.invalidParameters().isEmpty());
        });
    sidebyside::reportTimes(state, "full scan", totals);
}
BENCHMARK(BM_StateAfterEdit)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);

} // namespace

TELECFG_QT_BENCHMARK_MAIN()
