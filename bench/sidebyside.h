// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <ctime>
#include <string>

// Times the library's work and a reference for the same job in every iteration, in turn,
// on this thread's CPU clock: both see the same machine load, so their ratio holds on a
// busy machine where either time alone does not. The benchmark's own time is the work's
// (register it with UseManualTime()); reportTimes() puts the reference's time and the ratio
// into counters: "<name> us" per iteration and "x <name>", the work's time over the
// reference's.
namespace sidebyside {

inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

struct Totals
{
    double work = 0;      // seconds over all iterations
    double reference = 0; // seconds over all iterations
};

// `prepare` runs before each iteration, outside both times (e.g. to give the work a fresh
// copy of its input, as a host's own buffer would be).
template <typename Work, typename Reference, typename Prepare>
Totals run(benchmark::State &state, Work work, Reference reference, Prepare prepare)
{
    Totals totals;
    bool workFirst = true;
    for (auto _ : state) {
        prepare();
        // The order alternates, so neither side always finds the caches warmed by the other.
        double spent = 0;
        for (int side = 0; side < 2; ++side) {
            const bool isWork = (side == 0) == workFirst;
            const double start = threadSeconds();
            if (isWork)
                work();
            else
                reference();
            const double elapsed = threadSeconds() - start;
            (isWork ? totals.work : totals.reference) += elapsed;
            if (isWork)
                spent = elapsed;
        }
        workFirst = !workFirst;
        state.SetIterationTime(spent);
    }
    return totals;
}

template <typename Work, typename Reference>
Totals run(benchmark::State &state, Work work, Reference reference)
{
    return run(state, work, reference, [] {});
}

inline void reportTimes(benchmark::State &state, const std::string &name, const Totals &totals)
{
    if (state.iterations() == 0 || totals.reference <= 0)
        return;
    state.counters[name + " us"] = totals.reference * 1e6 / double(state.iterations());
    state.counters["x " + name] = totals.work / totals.reference;
}

} // namespace sidebyside
