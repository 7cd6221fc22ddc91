#include "enginepanel.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace
{

void WalkBare(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    for (auto _ : state)
        view.WalkBare();
}

void RecomputeLayout(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    for (auto _ : state)
        view.RecomputeLayout();
}

void OffsetControls(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    int offset = 0;
    for (auto _ : state)
        view.OffsetControls(0, ++offset);
}

void GetHolderFromControl(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    std::size_t next = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(view.GetHolderFromControl(view.m_vWidgets[next].get()));
        next = (next + 7919) % view.m_vWidgets.size();
    }
}

void AddElements(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    for (auto _ : state)
    {
        auto view = std::make_unique<CFakeView>(rows);
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(WalkBare)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RecomputeLayout)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(OffsetControls)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GetHolderFromControl)->RangeMultiplier(10)->Range(100, 1000000);
BENCHMARK(AddElements)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
