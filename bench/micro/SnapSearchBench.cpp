// One search for an edge to snap to, among many windows.
#include <vector>

#include <benchmark/benchmark.h>

#include "app/SnapSearch.h"

namespace quorvel {
namespace {

// The worst case: every window lies beside the moved one, on its screen, and has four edges to be compared.
void oneSnapSearch(benchmark::State& state)
{
    const std::vector<Screen> screens{{1, {0.0, 0.0, 3840.0, 2160.0}, {0.0, 0.0, 3840.0, 2135.0}},
                                      {2, {3840.0, 0.0, 3840.0, 2160.0}, {3840.0, 0.0, 3840.0, 2135.0}}};
    std::vector<WindowInfo> windows;
    for (int number = 0; number < state.range(0); ++number) {
        windows.push_back({number, {1500.0 + number, 200.0, 300.0, 1500.0}});
    }
    const AxRect before{1100.0, 400.0, 384.0, 600.0};
    const SnapStep step{before, changedBy(before, ArrowKey::right, ArrowEffect::move, 20.0), ArrowKey::right,
                        ArrowEffect::move};
    for (auto _ : state) {
        benchmark::DoNotOptimize(searchSnap(step, {windows, 0, screens}, 20.0));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(oneSnapSearch)->Arg(10)->Arg(100)->Arg(1000)->Complexity();

} // namespace
} // namespace quorvel
