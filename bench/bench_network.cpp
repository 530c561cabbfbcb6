// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The start-up cost of the network table (constructing GUI fills it) and the speed of turning
// mobile network ids into names, as a list of networks does for every element it shows.
#include "telecfg/dialogs/gui.h"
#include "telecfg/network/countrytable.h"

#include <QVector>
#include <benchmark/benchmark.h>

namespace {

void BM_GuiConstructionFill(benchmark::State &state)
{
    for (auto _ : state) {
        GUI gui;
        benchmark::DoNotOptimize(countryTable.size());
    }
    state.SetItemsProcessed(state.iterations() * 2030);
    state.counters["operators"] = 2030;
}

// A mix as a real list holds it: known rows, wildcards, unknown codes and unknown countries.
QVector<quint32> sampleIds()
{
    QVector<quint32> ids;
    for (auto c = countryTable.cbegin(); c != countryTable.cend(); ++c)
        for (auto o = c->operators.cbegin(); o != c->operators.cend(); ++o)
            ids.append((c.key() << 10) | o.key());
    const int known = ids.size();
    for (int i = 0; i < known / 4; ++i) {
        const quint32 id = ids[(i * 7919) % known];
        ids.append((id & ~0x3FFu) | (i % 2 ? CodeAll : CodeUnknown));
        ids.append(((100 + i % 50) << 10) | 1);
    }
    // Shuffled deterministically so that lookups do not walk the map in order.
    for (int i = ids.size() - 1; i > 0; --i)
        std::swap(ids[i], ids[(i * 104729) % (i + 1)]);
    return ids;
}

void BM_NetworkNamesLookup(benchmark::State &state)
{
    fillCountryTable();
    const QVector<quint32> ids = sampleIds();
    QString country, op;
    int i = 0;
    for (auto _ : state) {
        networkNames(ids[i], country, op);
        benchmark::DoNotOptimize(op.constData());
        if (++i == ids.size())
            i = 0;
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

BENCHMARK(BM_GuiConstructionFill)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_NetworkNamesLookup);
BENCHMARK_MAIN();
