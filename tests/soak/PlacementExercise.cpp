#include "e2e/DefaultLayouts.h"
#include "soak/Exercise.h"
#include "soak/KeyDriver.h"

namespace quorvel::soak {
namespace {

class PlacementExercise : public Exercise {
public:
    explicit PlacementExercise(SoakDesktop& desktop)
        : desktop(desktop),
          keys(desktop),
          window(desktop.display.client.activeWindow()),
          area(desktop.display.client.workArea())
    {
        desktop.showOverlay();
        desktop.display.keyboard.tap(XKB_KEY_6); // the four tiles' digit
        desktop.quorvel().waitForFrames(e2e::fourTiles, area);
        desktop.hideOverlay();
    }

    std::string name() const override { return "placements"; }
    std::string latency() const override { return "letter to the window in place"; }

    Milliseconds cycle() override
    {
        keys.show(e2e::RunningQuorvel::hotKey(), e2e::fourTiles.size() + 1);
        const auto code = desktop.display.keyboard.codeOf(XKB_KEY_a + static_cast<xcb_keysym_t>(tile));
        const auto begin = std::chrono::steady_clock::now();
        desktop.display.keyboard.tapCode({}, code);
        desktop.quorvel().waitUntilPlaced(window, e2e::fourTiles.at(tile).within(area));
        const auto end = std::chrono::steady_clock::now();
        keys.waitUntilIdle();
        tile = (tile + 1) % e2e::fourTiles.size();
        return end - begin;
    }

private:
    SoakDesktop& desktop;
    KeyDriver keys;
    xcb_window_t window;
    xtest::PixelRect area;
    std::size_t tile = 0;
};

} // namespace

std::unique_ptr<Exercise> placementExercise(SoakDesktop& desktop)
{
    return std::make_unique<PlacementExercise>(desktop);
}

} // namespace quorvel::soak
