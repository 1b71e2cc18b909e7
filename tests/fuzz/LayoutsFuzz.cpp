// The file of layouts, from the decoder to the overlay that shows what is in it.

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "layouts/LayoutsDecoding.h"
#include "layouts/LayoutsManager.h"
#include "layouts/OverlayWindowManager.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

// Ids that occur twice end the program on purpose: the file ships with it.
bool hasTwins(const LayoutsModel& model)
{
    std::set<std::string> ids;
    return !std::ranges::all_of(model.layouts, [&](const auto& each) { return ids.insert(each.id).second; });
}

bool isFinite(const WindowModel& frame)
{
    return std::ranges::all_of(windowModelFields,
                               [&](const auto& field) { return std::isfinite(frame.*field.second); });
}

void show(const LayoutModel& layout, const Platform& platform)
{
    OverlayWindowManager manager(platform);
    for (const auto& frame : layout.windows) {
        manager.showLayoutFrame("A", frame, {0.0, 0.0, 1440.0, 875.0});
    }
    manager.hideAll();
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    const std::string text(textOf(input));
    if (const auto summary = decodeLayoutSummary(text)) {
        require(decodeLayoutSummary(encodeLayoutSummary(*summary)) == *summary, "a summary survives a round trip");
    }
    const auto decoded = decodeLayoutsModel(text);
    require(decoded || !decoded.error().empty(), "a refusal has a reason");
    if (decoded && hasTwins(*decoded)) {
        return;
    }
    SimulatedDesktop desktop;
    desktop.journal.pause();
    desktop.bundle.addResource("layouts", "json", text);
    LayoutsManager manager(desktop.bundle, Settings(desktop.userDefaults), desktop.log);
    manager.loadLayouts();
    const auto loaded = manager.layouts();
    require(decoded.has_value() || loaded.empty(), "nothing is taken from a refused file");
    require(!decoded || loaded.size() <= decoded->layouts.size(), "no layout is invented");
    const auto platform = desktop.platform();
    for (const auto& layout : loaded) {
        require(layout.windows.size() <= LayoutsManager::largestFrameCount, "each frame has a letter");
        require(std::ranges::all_of(layout.windows, isFinite), "frames are finite");
        show(layout, platform);
    }
    require(desktop.overlayWindows.visible().empty(), "no window is left");
}

} // namespace quorvel
