// What the overlay asks of the catalogue at every showing.
#include <fstream>
#include <iterator>
#include <string>

#include <benchmark/benchmark.h>

#include "layouts/LayoutsManager.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

std::string shippedCatalogue()
{
    std::ifstream file(QUORVEL_LAYOUTS_FILE);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Catalogue {
    Catalogue()
    {
        desktop.bundle.addResource("layouts", "json", shippedCatalogue());
        desktop.journal.pause();
        manager.loadLayouts();
        manager.seedDefaultLayoutsIfNeeded();
    }

    SimulatedDesktop desktop;
    LayoutsManager manager{desktop.bundle, Settings(desktop.userDefaults), desktop.log};
};

void selectedLayouts(benchmark::State& state)
{
    const Catalogue catalogue;
    for (auto _ : state) {
        benchmark::DoNotOptimize(catalogue.manager.layouts());
    }
}
BENCHMARK(selectedLayouts);

void legend(benchmark::State& state)
{
    const Catalogue catalogue;
    for (auto _ : state) {
        benchmark::DoNotOptimize(catalogue.manager.legendEntries());
    }
}
BENCHMARK(legend);

} // namespace
} // namespace quorvel
