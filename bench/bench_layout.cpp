// How the flow layout's cost grows with its item count: time per item must stay flat.
#include "VelaBench.h"

#include "FlowLayout.h"

#include <QWidget>

#include <memory>

static void flowLayout(benchmark::State &state, int count)
{
    QWidget host;
    auto *layout = new FlowLayout(&host, 4, 6, 6);
    for (int i = 0; i < count; ++i) {
        auto *item = new QWidget;
        item->setFixedSize(40 + i % 7, 40);
        layout->addWidget(item);
    }
    bool wide = false;
    for (auto _ : state) {
        // Alternate the width so that every call lays the items out afresh.
        layout->setGeometry(QRect(0, 0, wide ? 900 : 640, 100000));
        wide = !wide;
    }
}

static void flow100(benchmark::State &state)
{
    flowLayout(state, 100);
}

static void flow1000(benchmark::State &state)
{
    flowLayout(state, 1000);
}

static void flow10000(benchmark::State &state)
{
    flowLayout(state, 10000);
}

VELA_BENCH_CASE({ "scaling: FlowLayout::setGeometry, 1000 vs 100 items (per item)", flow1000, 1000,
                  flow100, 100, 1.1 })
VELA_BENCH_CASE({ "scaling: FlowLayout::setGeometry, 10000 vs 100 items (per item)", flow10000,
                  10000, flow100, 100, 1.1 })
