#include <algorithm>

#include "e2e/OutputsTest.h"
#include "support/StrutPanel.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;
using xtest::Side;

class ArrangementJourney : public OutputsTest, public testing::WithParamInterface<xtest::MonitorArrangement> {
protected:
    void SetUp() override
    {
        OutputsTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        // The program counts screens from the primary one on.
        std::ranges::stable_sort(monitors, {}, &xtest::Monitor::role);
        display.arrange(GetParam().monitors);
        display.startWindowManager(xtest::WindowManager::openbox);
    }

    std::vector<PixelRect> areasBeside(const xtest::StrutPanel& panel, std::size_t holder) const
    {
        std::vector<PixelRect> areas;
        std::ranges::transform(monitors, std::back_inserter(areas), &xtest::Monitor::rect);
        areas[holder] = panel.remainder();
        return areas;
    }

    std::vector<xtest::Monitor> monitors = GetParam().monitors;
};

TEST_P(ArrangementJourney, ALetterReachesEachScreenBesideAPanelAtEachSide)
{
    start();
    const auto& first = monitors.front().rect;
    const auto window = openWindow({first.x + 50, first.y + 60, 400, 300});
    std::size_t current = 0;
    for (const auto side : {Side::left, Side::top, Side::right, Side::bottom}) {
        SCOPED_TRACE(side);
        const auto holder = xtest::outermost(monitors, side);
        const xtest::StrutPanel panel(display.server, monitors[holder].rect, side, 40);
        waitForPanel(panel);
        const auto areas = areasBeside(panel, holder);
        display.client.activate(window->id());
        showOverlay(fullScreen, areas[current]);
        if (monitors.size() > 1) {
            display.keyboard.tap(XKB_KEY_Right);
            current = (current + 1) % monitors.size();
            quorvel->waitForFrames(fullScreen, areas[current]);
        }
        display.keyboard.tap(XKB_KEY_a);
        quorvel->waitUntilPlaced(window->id(), areas[current]);
        quorvel->waitUntilIdle();
    }
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(Each, ArrangementJourney, testing::ValuesIn(xtest::monitorArrangements()),
                         [](const auto& parameter) { return parameter.param.name; });

} // namespace
} // namespace quorvel::e2e
