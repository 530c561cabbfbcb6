// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// Refreshing a form of 1000 bound controls, side by side with the toolkit's own widget
// mapper reverting 1000 line edits from a model: what a host pays to bring a form up to
// date. "x mapper" is the refresh's time over the mapper's, taken in the same iterations.
#include "bench/qtbenchmark.h"
#include "bench/sidebyside.h"
#include "telecfg/controls/cfgcheckbox.h"
#include "telecfg/controls/cfgcombobox.h"
#include "telecfg/controls/cfgdoublespinbox.h"
#include "telecfg/controls/cfglineedit.h"
#include "telecfg/controls/cfgradiobutton.h"
#include "telecfg/controls/cfgspinbox.h"
#include "tests/support/testhost.h"

#include <QDataWidgetMapper>
#include <QLineEdit>
#include <QStandardItemModel>
#include <tuple>

namespace {
constexpr int formSize = 1000;
constexpr int firstRef = 100;

enum Kind { CheckBox, ComboBox, LineEdit, SpinBox, DoubleSpinBox, RadioButton, Mixed };
const char *const kindNames[] = {"checkbox",      "combobox",    "lineedit", "spinbox",
                                 "doublespinbox", "radiobutton", "all six"};

// A form of `formSize` controls of one kind, or of all six in turn.
struct Form
{
    TestHost host;
    QWidget form;
    std::tuple<QList<CfgCheckBox *>, QList<CfgComboBox *>, QList<CfgLineEdit *>,
               QList<CfgSpinBox *>, QList<CfgDoubleSpinBox *>, QList<CfgRadioButton *>>
        controls;

    explicit Form(int kind)
    {
        for (int i = 0; i < formSize; ++i) {
            const int ref = firstRef + i;
            MainConfigObject &object = host.add(ref, 4, 10u);
            object.minimum = 0u;
            object.maximum = 100u;
            object.step = 5;
            object.options = {{0, {"5", "5"}}, {1, {"10", "10"}}, {2, {"15", "15"}}};
            host.stored[ref] = QStringLiteral("10");
            switch (kind == Mixed ? i % Mixed : kind) {
            case CheckBox:
                add<CfgCheckBox>(ref);
                break;
            case ComboBox:
                add<CfgComboBox>(ref);
                break;
            case LineEdit:
                add<CfgLineEdit>(ref);
                break;
            case SpinBox:
                add<CfgSpinBox>(ref);
                break;
            case DoubleSpinBox:
                add<CfgDoubleSpinBox>(ref);
                break;
            case RadioButton:
                add<CfgRadioButton>(ref);
                break;
            }
        }
    }
    template <class Control> void add(int ref)
    {
        auto *control = new Control(&form);
        control->setReference(&host, ref, nullptr, {});
        control->updateControl(1);
        std::get<QList<Control *>>(controls).append(control);
    }
    template <class Control> void refresh(const QList<Control *> &list)
    {
        for (Control *control : list)
            control->updateControl(0);
    }
    void refresh()
    {
        std::apply([this](const auto &...lists) { (refresh(lists), ...); }, controls);
    }
    // Every control's answer flips: isModified for five kinds, matchesStored for the combo.
    void flipAnswers(bool changed)
    {
        for (int i = 0; i < formSize; ++i) {
            const int ref = firstRef + i;
            if (changed)
                host.modified.insert(ref);
            else
                host.modified.remove(ref);
            host.stored[ref] = changed ? QStringLiteral("15") : QStringLiteral("10");
        }
    }
};

// The toolkit's mapper over a form of `formSize` line edits.
struct MapperForm
{
    QStandardItemModel model{1, formSize};
    QWidget form;
    QDataWidgetMapper mapper;

    MapperForm()
    {
        for (int i = 0; i < formSize; ++i)
            model.setData(model.index(0, i), QString::number(i));
        mapper.setModel(&model);
        for (int i = 0; i < formSize; ++i)
            mapper.addMapping(new QLineEdit(&form), i);
        mapper.toFirst();
    }
};

void BM_RefreshNoChange(benchmark::State &state)
{
    Form form(int(state.range(0)));
    MapperForm mapper;
    state.SetLabel(kindNames[state.range(0)]);
    const sidebyside::Totals totals = sidebyside::run(
        state, [&] { form.refresh(); }, [&] { mapper.mapper.revert(); });
    sidebyside::reportTimes(state, "mapper", totals);
    state.SetItemsProcessed(state.iterations() * formSize);
}
BENCHMARK(BM_RefreshNoChange)
    ->DenseRange(CheckBox, Mixed)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void BM_RefreshEveryColour(benchmark::State &state)
{
    Form form(int(state.range(0)));
    state.SetLabel(kindNames[state.range(0)]);
    bool changed = false;
    for (auto _ : state) {
        state.PauseTiming();
        changed = !changed;
        form.flipAnswers(changed);
        state.ResumeTiming();
        form.refresh();
    }
    state.SetItemsProcessed(state.iterations() * formSize);
}
BENCHMARK(BM_RefreshEveryColour)->DenseRange(CheckBox, Mixed)->Unit(benchmark::kMicrosecond);

} // namespace

TELECFG_QT_BENCHMARK_MAIN()
