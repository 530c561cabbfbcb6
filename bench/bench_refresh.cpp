// Refreshing a form of 1000 bound controls, beside the toolkit's own widget mapper
// reverting 1000 line edits from a model: what a host pays to bring a form up to date.
#include "telecfg/controls/cfgcheckbox.h"
#include "tests/support/testhost.h"

#include <QApplication>
#include <QDataWidgetMapper>
#include <QLineEdit>
#include <QStandardItemModel>
#include <benchmark/benchmark.h>

namespace {
constexpr int formSize = 1000;

struct CheckBoxForm
{
    TestHost host;
    QWidget form;
    QList<CfgCheckBox *> boxes;

    CheckBoxForm()
    {
        for (int i = 0; i < formSize; ++i) {
            host.add(100 + i, 22, i % 2);
            auto *box = new CfgCheckBox(&form);
            box->setReference(&host, 100 + i, nullptr, {});
            box->updateControl(1);
            boxes.append(box);
        }
    }
    void refresh()
    {
        for (CfgCheckBox *box : boxes)
            box->updateControl(0);
    }
};

void BM_CheckBoxRefreshNoChange(benchmark::State &state)
{
    CheckBoxForm form;
    for (auto _ : state)
        form.refresh();
    state.SetItemsProcessed(state.iterations() * formSize);
}
BENCHMARK(BM_CheckBoxRefreshNoChange)->Unit(benchmark::kMicrosecond);

void BM_CheckBoxRefreshEveryColour(benchmark::State &state)
{
    CheckBoxForm form;
    bool modified = false;
    for (auto _ : state) {
        modified = !modified;
        for (int i = 0; i < formSize; ++i) {
            if (modified)
                form.host.modified.insert(100 + i);
            else
                form.host.modified.remove(100 + i);
        }
        form.refresh();
    }
    state.SetItemsProcessed(state.iterations() * formSize);
}
BENCHMARK(BM_CheckBoxRefreshEveryColour)->Unit(benchmark::kMicrosecond);

void BM_MapperRevert(benchmark::State &state)
{
    QStandardItemModel model(1, formSize);
    for (int i = 0; i < formSize; ++i)
        model.setData(model.index(0, i), QString::number(i));
    QWidget form;
    QDataWidgetMapper mapper;
    mapper.setModel(&model);
    for (int i = 0; i < formSize; ++i)
        mapper.addMapping(new QLineEdit(&form), i);
    mapper.toFirst();
    for (auto _ : state)
        mapper.revert();
    state.SetItemsProcessed(state.iterations() * formSize);
}
BENCHMARK(BM_MapperRevert)->Unit(benchmark::kMicrosecond);
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen"
                                                                     : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
