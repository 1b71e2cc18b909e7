// Placing one more label among those of many windows.
#include <vector>

#include <benchmark/benchmark.h>

#include "layouts/LabelPlacement.h"

namespace quorvel {
namespace {

// The worst case: no anchor is free until the last one.
void oneLabelAmongMany(benchmark::State& state)
{
    const std::vector<Screen> screens{{1, {0.0, 0.0, 3840.0, 2160.0}, {0.0, 0.0, 3840.0, 2135.0}}};
    const ScreenRect bounds{100.0, 100.0, 1600.0, 1200.0};
    const Size size{150.0, 284.0};
    std::vector<ScreenRect> occupied(static_cast<std::size_t>(state.range(0)), ScreenRect{3000.0, 10.0, 10.0, 10.0});
    for (const auto anchor : anchorCandidates(LabelPosition::topLeft).first(8)) {
        occupied.push_back(labelRect(anchor, bounds, size));
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(resolveAnchor(LabelPosition::topLeft, bounds, size, occupied, screens));
    }
}
BENCHMARK(oneLabelAmongMany)->Arg(10)->Arg(100)->Arg(1000);

} // namespace
} // namespace quorvel
