#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/ModeEnvironment.h"
#include "base/WeakGuard.h"
#include "layouts/WindowModel.h"
#include "system/CapturedKey.h"
#include "system/ScreensModel.h"

namespace quorvel {

class WindowElementModel;

// The layout overlay: the frames of the current layout over a screen, each with a letter. A letter puts the window into
// its frame; other keys go to another layout or screen, or close the overlay.
class LayoutOverlayMode {
public:
    explicit LayoutOverlayMode(ModeEnvironment environment);

    // Shows the overlay for `element`, on the current screen of `screens`, and takes the keyboard. Without an element
    // it is the frontmost window, without screens the screen that holds the element; where there is none, a line in
    // the log says so and nothing is shown.
    void showOverlay(const std::optional<ScreensModel>& screens, std::shared_ptr<WindowElementModel> element);

    // The overlay is gone: the window is let go, and keys that come late do nothing.
    void leave() { current.reset(); }

    // Also while a layout without frames shows nothing or the legend alone.
    bool isShowing() const { return current != nullptr; }

    // Puts the window into a frame of a layout on the current screen.
    void placeWindow(const WindowModel& frame, const ScreensModel& screens, WindowElementModel& element) const;

private:
    // One showing of the overlay.
    struct Showing {
        ScreensModel screens;
        std::shared_ptr<WindowElementModel> element;
        std::map<std::string, WindowModel> labelToFrame;
    };

    std::optional<ScreensModel> screensForElement(const WindowElementModel& element) const;
    void showFrames(const Showing& showing, const std::vector<WindowModel>& frames);
    void showLegend(const ScreensModel& screens);
    void captureKeys();

    void handleKey(const Showing& showing, const CapturedKey& key) const;
    void navigate(Action action, const Showing& showing) const;
    std::optional<ScreensModel> stepScreen(Action action, const Showing& showing) const;
    void jump(const std::string& digit, const Showing& showing) const;
    void choose(const std::string& character, const Showing& showing) const;
    void reportGoneWindow(const std::shared_ptr<WindowElementModel>& element) const;

    ModeEnvironment environment;
    std::shared_ptr<const Showing> current; // present while the overlay is up
    WeakGuard weakly;
};

} // namespace quorvel
