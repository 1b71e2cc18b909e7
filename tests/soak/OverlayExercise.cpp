#include <array>

#include "e2e/DefaultLayouts.h"
#include "soak/Exercise.h"
#include "soak/KeyDriver.h"

namespace quorvel::soak {
namespace {

class OverlayExercise : public Exercise {
public:
    explicit OverlayExercise(SoakDesktop& desktop) : desktop(desktop), keys(desktop) {}

    std::string name() const override { return "overlay cycles"; }
    std::string latency() const override { return "hot key to the last frame"; }

    Milliseconds cycle() override
    {
        const auto time = keys.show(e2e::RunningQuorvel::hotKey(), shownWindows());
        layout = (layout + 1) % layouts.size();
        keys.typeAndReplace(XKB_KEY_Down, shownWindows());
        desktop.display.keyboard.tap(XKB_KEY_Escape);
        keys.waitUntilIdle();
        return time;
    }

private:
    // Frames and legend.
    std::size_t shownWindows() const { return layouts.at(layout)->size() + 1; }

    static constexpr std::array layouts{&e2e::fullScreen, &e2e::centered,        &e2e::sideBySide,
                                        &e2e::stacked,    &e2e::threeSideBySide, &e2e::fourTiles};

    SoakDesktop& desktop;
    KeyDriver keys;
    std::size_t layout = 0;
};

} // namespace

std::unique_ptr<Exercise> overlayExercise(SoakDesktop& desktop)
{
    return std::make_unique<OverlayExercise>(desktop);
}

} // namespace quorvel::soak
