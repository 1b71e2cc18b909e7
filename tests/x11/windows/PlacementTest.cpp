#include <algorithm>
#include <array>

#include "support/StrutPanel.h"
#include "x11/windows/PlacementDesktop.h"

namespace quorvel::x11 {
namespace {

using xtest::ClientProcess;
using xtest::MonitorArrangement;
using xtest::Side;
using xtest::UnitFrame;

// Each frame meets each state in turn, for their numbers have no common divisor.
constexpr std::array frames = {UnitFrame{0, 0, 1, 1}, UnitFrame{0.5, 0, 1, 0.5}, UnitFrame{0, 0, 0.5, 1},
                               UnitFrame{0.125, 0.1, 0.875, 0.9}, UnitFrame{1.0 / 3, 0, 1, 2.0 / 3}};
constexpr std::array states = {WindowState::normal, WindowState::maximized, WindowState::fullscreen};
constexpr std::array sides = {Side::left, Side::top, Side::right, Side::bottom};
constexpr int panelThickness = 40;

class Placing : public PlacementDesktop {
protected:
    static std::vector<MonitorArrangement> arrangements()
    {
        const auto& all = xtest::monitorArrangements();
        return hasOutputs() ? all : std::vector{all.front()};
    }

    void placeOnEachMonitorWithAPanel(const MonitorArrangement& arrangement, Side side)
    {
        SCOPED_TRACE(testing::Message() << "panel at the " << side);
        const auto holder = xtest::outermost(arrangement.monitors, side);
        const auto reservation = arrangement.monitors.size() == 1 ? xtest::StrutPanel::Reservation::plain
                                                                  : xtest::StrutPanel::Reservation::partial;
        const xtest::StrutPanel panel(desktop->display.server, arrangement.monitors[holder].rect, side, panelThickness,
                                      reservation);
        for (std::size_t i = 0; i < arrangement.monitors.size(); ++i) {
            placeInNextWay(arrangement.monitors[i].name,
                           i == holder ? panel.remainder() : arrangement.monitors[i].rect);
        }
    }

    void placeInNextWay(const std::string& monitor, const xtest::PixelRect& area)
    {
        const auto state = states[turn % states.size()];
        const auto& frame = frames[turn % frames.size()];
        ++turn;
        SCOPED_TRACE(testing::Message() << "monitor " << monitor << ", from state " << state);
        bring(state);
        place(frame, area);
        expectOn(frame.within(area));
    }

    std::size_t turn = 0;
};

TEST_P(Placing, PutsTheWindowOnTheDrawnFrameOnEachMonitorOfEachArrangement)
{
    open();
    for (const auto& arrangement : arrangements()) {
        SCOPED_TRACE(arrangement.name);
        desktop->display.arrange(arrangement.monitors);
        for (const auto& monitor : arrangement.monitors) {
            placeInNextWay(monitor.name, monitor.rect);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Placing,
                         testing::Combine(testing::ValuesIn(xtest::allWindowManagers()),
                                          testing::ValuesIn(ClientProcess::allKinds())),
                         PlacementDesktop::name);

class PlacingBesidePanels : public Placing {};

TEST_P(PlacingBesidePanels, PutsTheWindowOnTheDrawnFrameWithAPanelAtEachSide)
{
    open();
    for (const auto& arrangement : arrangements()) {
        SCOPED_TRACE(arrangement.name);
        desktop->display.arrange(arrangement.monitors);
        for (const auto side : sides) {
            if (knowsPanelsAt(side)) {
                placeOnEachMonitorWithAPanel(arrangement, side);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, PlacingBesidePanels,
                         testing::Combine(testing::ValuesIn(xtest::allWindowManagers()),
                                          testing::Values(ClientProcess::Kind::plain)),
                         PlacementDesktop::name);

} // namespace
} // namespace quorvel::x11
