// From a chosen frame to the window in it: what the program itself adds to the time that the desktop takes.
#include <benchmark/benchmark.h>

#include "app/MainController.h"
#include "app/WindowPlacement.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "system/WindowElementModel.h"

namespace quorvel {
namespace {

constexpr WindowModel leftHalf{0.0, 0.0, 0.5, 1.0};
constexpr WindowModel rightHalf{0.5, 0.0, 1.0, 1.0};

void frameToRectangle(benchmark::State& state)
{
    const ScreenRect mainFrame{0.0, 0.0, 1440.0, 900.0};
    const ScreenRect screenFrame{-1920.0, 0.0, 1920.0, 1080.0};
    const ScreenRect visibleFrame{-1920.0, 50.0, 1920.0, 1005.0};
    auto frame = rightHalf;
    for (auto _ : state) {
        benchmark::DoNotOptimize(frame);
        benchmark::DoNotOptimize(placeWindowInFrame(frame, screenFrame, visibleFrame, mainFrame));
    }
}
BENCHMARK(frameToRectangle);

// With its lines in the log, its four writes, and what the window's observer makes of its moves.
void placing(benchmark::State& state)
{
    SimulatedDesktop desktop;
    desktop.journal.pause();
    const Platform platform = desktop.platform();
    MainController controller(platform, nullptr);
    auto& editor = desktop.launch("Editor");
    desktop.openWindow(editor, "Notes", {100.0, 100.0, 800.0, 600.0});
    const auto element = WindowElementModel::frontmostWindow(platform);
    ScreensModel screens(platform, std::make_shared<CurrentScreen>());
    if (!element->windowRect() || !screens.selectScreenForWindowRect(*element->windowRect())) {
        state.SkipWithError("there is no window to place");
        return;
    }
    bool isRight = false;
    for (auto _ : state) {
        isRight = !isRight;
        controller.handleAction(Action::moveClientWindow, {isRight ? rightHalf : leftHalf, screens, element});
        desktop.drain();
        desktop.log.clear();
    }
}
BENCHMARK(placing);

} // namespace
} // namespace quorvel
