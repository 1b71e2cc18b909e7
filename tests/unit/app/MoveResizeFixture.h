#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <ranges>
#include <string>
#include <string_view>
#include <vector>

#include "app/MainController.h"
#include "system/WindowElementModel.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {

namespace keys {
inline constexpr KeyCode r = 15;
} // namespace keys

inline constexpr std::uint64_t commandOption = eventFlags::command | eventFlags::option;

// The editor's window in front of windows of other applications, each of which has one.
class MoveResizeFixture : public AppFixture {
protected:
    // What the mode's window list will be: the editor's window and then these.
    void furnish(const AxRect& frame, const std::vector<AxRect>& others = {})
    {
        for (const auto& other : others | std::views::reverse) {
            auto& application = desktop.launch("Other");
            otherWindows.insert(otherWindows.begin(), &desktop.openWindow(application, "Other", other));
        }
        desktop.moveWindow(window, frame);
        desktop.activate(editor);
    }

    // Up to the point where the mode is on.
    void begin(const AxRect& frame, const std::vector<AxRect>& others = {})
    {
        furnish(frame, others);
        launch();
        pressHotKey();
    }

    void pressHotKey() { type(keys::r, commandOption); }

    void left() { type(keyCodes::leftArrow); }
    void right() { type(keyCodes::rightArrow); }
    void up() { type(keyCodes::upArrow); }
    void down() { type(keyCodes::downArrow); }
    void cycle(std::uint64_t flags = 0) { type(keyCodes::tab, flags); }
    void minimize() { type(keys::m); }
    void resize(KeyCode arrow) { type(arrow, eventFlags::shift); }

    // What a reading of the editor's window is after each of so many presses.
    template <class Press, class Reading>
    std::vector<double> after(std::size_t presses, Press press, Reading reading)
    {
        std::vector<double> readings;
        while (readings.size() < presses) {
            press();
            readings.push_back(std::invoke(reading, window.frame()));
        }
        return readings;
    }

    std::vector<double> xAfterRights(std::size_t presses)
    {
        return after(presses, [this] { right(); }, &AxRect::x);
    }
    std::vector<double> xAfterLefts(std::size_t presses)
    {
        return after(presses, [this] { left(); }, &AxRect::x);
    }
    std::vector<double> widthsAfterGrowing(std::size_t presses)
    {
        return after(presses, [this] { resize(keyCodes::rightArrow); }, &AxRect::width);
    }

    SimulatedWindow& other(std::size_t index) { return *otherWindows.at(index); }

    std::shared_ptr<WindowElementModel> element() { return controller().modeState().moveResizeElement; }
    bool isCurrent(const SimulatedWindow& candidate)
    {
        return element() && element()->axWindowElement() &&
               element()->axWindowElement()->isEqual(*desktop.element(candidate));
    }

    bool isSnapTargetShown()
    {
        const auto& overlay = controller().modeState().snapTargetOverlay;
        return overlay && overlay->window().isVisible();
    }

    // True when the mode is on and a frame surrounds this window, and no other selection frame shows.
    bool isFramed(const SimulatedWindow& framed)
    {
        const auto expected = desktop.screens.flipped(framed.frame());
        const auto shown = desktop.overlayWindows.visible();
        const std::size_t frames = shown.size() - (isSnapTargetShown() ? 1 : 0);
        return frames == 1 && std::ranges::any_of(shown, [&](const auto& each) { return each->frame == expected; });
    }

    bool isModeGone() { return element() == nullptr && isOverlayGone(); }

    static KeyCodeSet sevenKeys() { return {123, 124, 125, 126, 48, 53, 46}; }

    static constexpr AxRect neighbour{600, 100, 400, 400};

private:
    std::vector<SimulatedWindow*> otherWindows;
};

} // namespace quorvel
