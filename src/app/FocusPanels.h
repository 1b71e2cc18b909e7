#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "app/FocusLabels.h"
#include "base/Geometry.h"
#include "layouts/MinimizedWindowEntry.h"

namespace quorvel {

struct ModeState;
struct Platform;
class OverlayWindow;

// The focus switcher's lists: all windows, and the minimized ones. The mode state holds the panels and which of them
// show.
class FocusPanels {
public:
    FocusPanels(const Platform& platform, ModeState& state) : platform(platform), state(state) {}

    // Makes the panels of a new run, hidden: one of all windows, and one of the minimized ones if there are any with a
    // label.
    void build(const FocusCandidates& candidates, const FocusLabels& labels);

    // Shows and hides the panels as the state says, and puts them where they belong.
    void refresh();

private:
    std::unique_ptr<OverlayWindow> makePanel(std::string title, std::vector<MinimizedWindowEntry> entries) const;
    void placeMinimizedPanel(OverlayWindow& panel) const;

    const Platform& platform;
    ModeState& state;
    ScreenRect visibleFrame; // of the screen that had the keyboard focus when the run began
    std::size_t visibleCount = 0;
    std::size_t minimizedCount = 0;
};

} // namespace quorvel
