#include "platform/simulated/SimulatedDesktopProbe.h"

#include "platform/simulated/SimulatedHotKeys.h"

namespace quorvel {

SimulatedDesktopProbe::SimulatedDesktopProbe(const SimulatedHotKeys& hotKeys)
    : desktop{.display = "simulated",
              .monitors = {{"one", {0.0, 0.0, 1920.0, 1080.0}, {0.0, 25.0, 1920.0, 1055.0}}},
              .windowManager =
                  WindowManagerFacts{"simulated",
                                     {WindowManagerFeature::listsWindows, WindowManagerFeature::tellsActiveWindow,
                                      WindowManagerFeature::placesWindows, WindowManagerFeature::leavesFullscreen,
                                      WindowManagerFeature::tellsFrames, WindowManagerFeature::switchesDesktops,
                                      WindowManagerFeature::tellsHidden}},
              .keyboard = {.layouts = {"us"}},
              .hasCompositor = true,
              .hasTray = true,
              .hasFonts = true},
      hotKeys(hotKeys)
{}

HotKeyHolder SimulatedDesktopProbe::hotKeyHolder(std::uint32_t keyCode, std::uint32_t modifiers)
{
    const SimulatedHotKeys::Combination combination{keyCode, modifiers};
    if (hotKeys.idOf(combination)) {
        return HotKeyHolder::runningProgram;
    }
    constexpr std::uint32_t firstThatNoKeyHas = 128;
    if (keyCode >= firstThatNoKeyHas) {
        return HotKeyHolder::noSuchKey;
    }
    return hotKeys.isHeldElsewhere(combination) ? HotKeyHolder::anotherProgram : HotKeyHolder::nobody;
}

} // namespace quorvel
