// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The memory an undo history of 10,000 edits holds, beside a plain QUndoStack of commands
// that hold a parameter number and the same two QVariants each and nothing else: what the
// history's own bookkeeping (step texts, merge state) costs above the values themselves.
#include "bench/qtbenchmark.h"
#include "telecfg/config/parametertable.h"
#include "telecfg/form/formstate.h"
#include "telecfg/form/formundo.h"

#include <QUndoCommand>
#include <QUndoStack>
#include <malloc.h>

namespace {
constexpr int edits = 10000;
constexpr int parameters = 100;
constexpr int firstRef = 100;

size_t heapInUse()
{
    return mallinfo2().uordblks;
}

QByteArray tableJson()
{
    QByteArray json = R"({"version": 12, "parameters": [)";
    for (int i = 0; i < parameters; ++i)
        json += QByteArray(i ? "," : "") + R"({"ref": )" + QByteArray::number(firstRef + i) +
                R"(, "type": 1, "value": 0})";
    return json + "]}";
}

class PlainCommand : public QUndoCommand
{
public:
    PlainCommand(int ref, QVariant before, QVariant after)
        : ref(ref), before(std::move(before)), after(std::move(after))
    {
    }
    int ref;
    QVariant before, after;
};

// Every edit a step of its own: edits of one parameter follow each other only every
// `parameters` edits, and the event loop turns between them as between the user's edits.
void BM_UndoHistoryMemory(benchmark::State &state)
{
    double historyBytes = 0, referenceBytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ParameterTable table;
        table.loadJson(tableJson());
        FormState formState(&table);
        state.ResumeTiming();
        const size_t start = heapInUse();
        {
            FormUndo undo(&formState);
            for (int i = 0; i < edits; ++i) {
                table.setValue(firstRef + i % parameters, i + 1);
                QCoreApplication::processEvents();
            }
            historyBytes += double(heapInUse() - start);
            if (undo.stack()->count() != edits)
                state.SkipWithError("the edits did not make one step each");
        }
        state.PauseTiming();
        const size_t referenceStart = heapInUse();
        {
            QUndoStack reference;
            for (int i = 0; i < edits; ++i)
                reference.push(new PlainCommand(firstRef + i % parameters, i, i + 1));
            referenceBytes += double(heapInUse() - referenceStart);
        }
        state.ResumeTiming();
    }
    const double runs = double(state.iterations());
    state.counters["MB"] = historyBytes / runs / 1e6;
    state.counters["bytes/edit"] = historyBytes / runs / edits;
    state.counters["reference MB"] = referenceBytes / runs / 1e6;
    state.counters["x reference"] = historyBytes / referenceBytes;
    state.SetItemsProcessed(state.iterations() * edits);
}
BENCHMARK(BM_UndoHistoryMemory)->Unit(benchmark::kMillisecond);

} // namespace

TELECFG_QT_BENCHMARK_MAIN()
