// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The collection list as a host uses it: binding and painting a long list, and filling one
// element after another with the user interface running between the adds.
#include "bench/qtbenchmark.h"
#include "telecfg/collections/cfglistwidget.h"
#include "tests/support/testhost.h"

#include <QTest>

namespace {
constexpr int places = 1000;
constexpr int ref = 40;

QByteArray identifier(int i)
{
    return QByteArray("ID-") + QByteArray::number(100000 + i);
}

struct ShownList
{
    TestHost host;
    CfgListWidget list;

    // The offscreen pointer rests at the screen's top left corner; `underPointer` puts the
    // list there, otherwise it stands away from it, as when the user clicks an add button.
    explicit ShownList(const QVector<QByteArray> &value, bool underPointer = false)
    {
        host.add(ref, 20, QVariant::fromValue(value)).capacity = places;
        list.resize(260, 200);
        list.move(underPointer ? QPoint(0, 0) : QPoint(400, 300));
        list.show();
        if (!QTest::qWaitForWindowExposed(&list))
            qFatal("the list was not shown");
    }
};

// 1000 identifiers, 100 of them invalid and 100 modified; each iteration binds the list
// anew, paints every item's state and repaints the view.
void BM_ListBindAndRepaint(benchmark::State &state)
{
    QVector<QByteArray> value;
    for (int i = 0; i < places; ++i)
        value << identifier(i);
    ShownList shown(value);
    for (int i = 0; i < 100; ++i) {
        shown.host.invalidItemsOf[ref] << i * 10;
        shown.host.modifiedItemsOf[ref] << i * 10 + 5;
    }
    for (auto _ : state) {
        shown.list.setReference(&shown.host, ref, nullptr, {});
        shown.list.updateControl(1);
        QCoreApplication::processEvents();
        shown.list.viewport()->repaint();
    }
    state.SetItemsProcessed(state.iterations() * places);
}
BENCHMARK(BM_ListBindAndRepaint)->Unit(benchmark::kMillisecond);

// Fills an empty list of 1000 places, one add after another; `eventsEachAdd` processes the
// events after each add as the host's main loop would, otherwise once at the end (the list's
// own share of the work).
void fillList(benchmark::State &state, bool eventsEachAdd, bool underPointer = false)
{
    ShownList shown{QVector<QByteArray>(places), underPointer};
    QVector<QString> inputs;
    for (int i = 0; i < places; ++i)
        inputs << QString::fromLatin1(identifier(i));
    for (auto _ : state) {
        state.PauseTiming();
        shown.host.records[ref].value = QVariant::fromValue(QVector<QByteArray>(places));
        shown.host.writes.clear();
        shown.list.setReference(&shown.host, ref, nullptr, {});
        QCoreApplication::processEvents();
        state.ResumeTiming();
        for (const QString &input : inputs) {
            shown.list.addValue(QVariant(input), ref);
            if (eventsEachAdd)
                QCoreApplication::processEvents();
        }
        QCoreApplication::processEvents();
    }
    if (shown.list.count() != places)
        state.SkipWithError("the list did not fill");
    state.SetItemsProcessed(state.iterations() * places);
}

void BM_ListThousandAdds(benchmark::State &state)
{
    fillList(state, true);
}
BENCHMARK(BM_ListThousandAdds)->Unit(benchmark::kMillisecond);

// With the pointer resting over the list, each add scrolls another row under it, which is
// painted anew.
void BM_ListThousandAddsUnderPointer(benchmark::State &state)
{
    fillList(state, true, true);
}
BENCHMARK(BM_ListThousandAddsUnderPointer)->Unit(benchmark::kMillisecond);

void BM_ListThousandAddsEventsOnce(benchmark::State &state)
{
    fillList(state, false);
}
BENCHMARK(BM_ListThousandAddsEventsOnce)->Unit(benchmark::kMillisecond);
} // namespace

TELECFG_QT_BENCHMARK_MAIN()
