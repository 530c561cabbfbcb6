// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The parameter browser over 10,000 parameters, each figure beside a reference in the same
// iterations: building the model (and the first search, which gathers the texts it looks
// through) against a QStandardItemModel filled with the same texts; one keystroke of filtering
// against a plain QSortFilterProxyModel's fixed-string filter over that model. "model bytes"
// is what the model and its search texts take from the heap (mallinfo2), beside the reference
// model's.
#include "bench/qtbenchmark.h"
#include "bench/sidebyside.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/parameterfilter.h"
#include "telecfg/form/parametermodel.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <malloc.h>
#include <memory>

namespace {
constexpr int size = 10000;

struct Table
{
    ParameterTable table;
    Table()
    {
        for (int i = 0; i < size; ++i) {
            MainConfigObject record;
            record.value = uint(i % 97);
            record.toolTip = QStringLiteral("Opis parametru %1").arg(i);
            if (i % 10 == 0)
                record.options = {{0, {"Wyłączony", "0"}}, {1, {"Włączony", "1"}}};
            table.addRecord(1000 + i, record);
            ParameterTable::Presentation presentation;
            presentation.label = QStringLiteral("Parametr urządzenia nr %1").arg(i);
            table.setPresentation(1000 + i, presentation);
        }
    }
};

std::unique_ptr<QStandardItemModel> referenceModel(ParameterModel &model)
{
    auto reference = std::make_unique<QStandardItemModel>(size, ParameterModel::ColumnCount);
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < ParameterModel::ColumnCount; ++column)
            reference->setItem(row, column,
                               new QStandardItem(model.index(row, column).data().toString()));
    return reference;
}

size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void BM_BuildModel(benchmark::State &state)
{
    Table table;
    FormState formState(&table.table);
    ParameterModel texts(&formState);
    double modelBytes = 0;
    double referenceBytes = 0;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            const size_t before = heapInUse();
            auto model = std::make_unique<ParameterModel>(&formState);
            benchmark::DoNotOptimize(model->index(0, 0).data(ParameterModel::SearchTextRole));
            modelBytes = double(heapInUse() - before);
        },
        [&] {
            const size_t before = heapInUse();
            auto reference = referenceModel(texts);
            referenceBytes = double(heapInUse() - before);
        });
    sidebyside::reportTimes(state, "standard model", totals);
    state.counters["model bytes"] = modelBytes;
    state.counters["standard model bytes"] = referenceBytes;
}
BENCHMARK(BM_BuildModel)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_FilterKeystroke(benchmark::State &state)
{
    Table table;
    FormState formState(&table.table);
    ParameterModel model(&formState);
    ParameterFilter filter;
    filter.setSourceModel(&model);
    auto reference = referenceModel(model);
    QSortFilterProxyModel plain;
    plain.setSourceModel(reference.get());
    plain.setFilterKeyColumn(ParameterModel::NameColumn);
    plain.setFilterCaseSensitivity(Qt::CaseInsensitive);
    // The user types "nr 12", one key at a time, and starts again.
    const QString typed = QStringLiteral("nr 12");
    int length = 0;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            filter.setSearchText(typed.left(length));
            benchmark::DoNotOptimize(filter.rowCount());
        },
        [&] {
            plain.setFilterFixedString(typed.left(length));
            benchmark::DoNotOptimize(plain.rowCount());
        },
        [&] { length = length % typed.size() + 1; });
    sidebyside::reportTimes(state, "plain filter", totals);
}
BENCHMARK(BM_FilterKeystroke)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

TELECFG_QT_BENCHMARK_MAIN()
