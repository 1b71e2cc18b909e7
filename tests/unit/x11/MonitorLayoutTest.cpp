#include "platform/x11/screens/MonitorLayout.h"

#include <random>

#include <gtest/gtest.h>

#include "base/LogText.h"

namespace quorvel::x11 {
namespace {

constexpr Size root{3200.0, 1080.0};
constexpr RootRect leftMonitor{0.0, 0.0, 1920.0, 1080.0};
constexpr RootRect rightMonitor{1920.0, 0.0, 1280.0, 1024.0};

Strut strut(std::initializer_list<std::uint32_t> values)
{
    return strutOf(std::vector<std::uint32_t>(values), root).value();
}

TEST(Struts, AShortPropertyIsNoStrut)
{
    EXPECT_FALSE(strutOf(std::vector<std::uint32_t>{1, 2, 3}, root));
}

TEST(Struts, APlainStrutTakesTheWholeEdge)
{
    const auto bottom = strut({0, 0, 0, 26});
    EXPECT_EQ(bottom.bottom, (Strut::Edge{26.0, 0.0, 3199.0}));
    EXPECT_EQ(workArea(leftMonitor, std::array{bottom}, root), (RootRect{0.0, 0.0, 1920.0, 1054.0}));
}

TEST(WorkArea, WithoutPanelsItIsTheMonitor)
{
    EXPECT_EQ(workArea(leftMonitor, {}, root), leftMonitor);
}

TEST(WorkArea, APanelTakesItsMonitorOnly)
{
    const std::array panels{strut({0, 0, 30, 0, 0, 0, 0, 0, 1920, 3199, 0, 0})};
    EXPECT_EQ(workArea(leftMonitor, panels, root), leftMonitor);
    EXPECT_EQ(workArea(rightMonitor, panels, root), (RootRect{1920.0, 30.0, 1280.0, 994.0}));
}

TEST(WorkArea, APanelOfALowerMonitorIsMeasuredFromTheRootsEdge)
{
    // 40 pixels on the lower monitor, which ends 56 pixels above the root's bottom.
    const std::array panels{strut({0, 0, 0, 96, 0, 0, 0, 0, 0, 0, 1920, 3199})};
    EXPECT_EQ(workArea(rightMonitor, panels, root), (RootRect{1920.0, 0.0, 1280.0, 984.0}));
    EXPECT_EQ(workArea(leftMonitor, panels, root), leftMonitor);
}

TEST(WorkArea, APanelBetweenTwoMonitorsLeavesTheOneItReachesAcrossAlone)
{
    const std::array atRightMonitorsLeft{strut({1980, 0, 0, 0, 0, 1023, 0, 0, 0, 0, 0, 0})};
    EXPECT_EQ(workArea(leftMonitor, atRightMonitorsLeft, root), leftMonitor);
    EXPECT_EQ(workArea(rightMonitor, atRightMonitorsLeft, root), (RootRect{1980.0, 0.0, 1220.0, 1024.0}));

    const std::array atLeftMonitorsRight{strut({0, 1340, 0, 0, 0, 0, 0, 1079, 0, 0, 0, 0})};
    EXPECT_EQ(workArea(leftMonitor, atLeftMonitorsRight, root), (RootRect{0.0, 0.0, 1860.0, 1080.0}));
    EXPECT_EQ(workArea(rightMonitor, atLeftMonitorsRight, root), rightMonitor);
}

TEST(WorkArea, OfTwoPanelsAtOneEdgeTheDeeperCounts)
{
    const std::array panels{strut({0, 0, 30, 0, 0, 0, 0, 0, 0, 500, 0, 0}),
                            strut({0, 0, 44, 0, 0, 0, 0, 0, 600, 900, 0, 0})};
    EXPECT_EQ(workArea(leftMonitor, panels, root), (RootRect{0.0, 44.0, 1920.0, 1036.0}));
}

TEST(WorkArea, PanelsThatLeaveNothingTogetherAreIgnored)
{
    const std::array panels{strut({1000, 0, 0, 0, 0, 1079, 0, 0, 0, 0, 0, 0}),
                            strut({0, 2600, 0, 0, 0, 0, 0, 1079, 0, 0, 0, 0})};
    EXPECT_EQ(workArea(leftMonitor, panels, root), leftMonitor);
}

TEST(WorkArea, TheWindowManagersWordOnTheMonitorLimitsIt)
{
    const std::array free{RootRect{1920.0, 24.0, 1280.0, 1000.0}, RootRect{60.0, 0.0, 1860.0, 1080.0}};
    const RootRect withoutTop{0.0, 20.0, 1920.0, 1060.0};
    EXPECT_EQ(limitedToWorkArea(withoutTop, leftMonitor, free), (RootRect{60.0, 20.0, 1860.0, 1060.0}));
    EXPECT_EQ(limitedToWorkArea(leftMonitor, leftMonitor, std::array{RootRect{0.0, 0.0, 3200.0, 1054.0}}), leftMonitor);
}

TEST(ScreenLayout, WithoutMonitorsThereAreNoScreens)
{
    EXPECT_TRUE(screenLayout({}).screens.empty());
}

TEST(ScreenLayout, AFrameLeavesOutPanelsOnThreeSidesAndTheVisibleFrameAlsoTheTop)
{
    const std::array monitors{MonitorWithWorkArea{{1, leftMonitor}, {50.0, 30.0, 1800.0, 1000.0}}};
    const auto layout = screenLayout(monitors);
    ASSERT_EQ(layout.screens.size(), 1U);
    EXPECT_EQ(layout.screens[0].frame, (ScreenRect{50.0, 0.0, 1800.0, 1030.0}));
    EXPECT_EQ(layout.screens[0].visibleFrame, (ScreenRect{50.0, 0.0, 1800.0, 1000.0}));
}

TEST(ScreenCoordinates, WaysThereAndBackAgree)
{
    const ScreenCoordinates coordinates(200.0, 900.0);
    const RootRect rect{10.0, 300.0, 40.0, 50.0};
    EXPECT_EQ(coordinates.rootRect(coordinates.axRect(rect)), rect);
    EXPECT_EQ(coordinates.rootRect(coordinates.screenRect(rect)), rect);
    const RootPoint point{10.0, 300.0};
    EXPECT_EQ(coordinates.rootPoint(coordinates.axPoint(point)), point);
    EXPECT_EQ(coordinates.rootPoint(coordinates.screenPoint(point)), point);
}

// The portable program's own arithmetic over the screens it is given.

double topOfAllFrames(const std::vector<Screen>& screens)
{
    auto all = ScreenRect::null();
    for (const auto& screen : screens) {
        all = all.unitedWith(screen.frame);
    }
    return all.maxY();
}

AxRect placement(const Screen& screen, const Screen& first, const UnitRect& unit)
{
    const double diffY = first.frame.height - screen.frame.height - screen.frame.minY();
    const double menuBarHeight = screen.frame.height - screen.visibleFrame.height;
    return {screen.frame.minX() + unit.minX() * screen.visibleFrame.width,
            diffY + menuBarHeight + (1.0 - unit.maxY()) * screen.visibleFrame.height,
            unit.width * screen.visibleFrame.width, unit.height * screen.visibleFrame.height};
}

ScreenRect drawnFrame(const Screen& screen, const UnitRect& unit)
{
    return {screen.visibleFrame.minX() + unit.minX() * screen.visibleFrame.width,
            screen.visibleFrame.minY() + unit.minY() * screen.visibleFrame.height,
            unit.width * screen.visibleFrame.width, unit.height * screen.visibleFrame.height};
}

class Arrangements : public testing::TestWithParam<unsigned> {
protected:
    // One to four monitors anywhere, with panels of any depth on any of their sides.
    std::vector<MonitorWithWorkArea> randomMonitors()
    {
        std::vector<MonitorWithWorkArea> monitors;
        const auto count = number(1, 4);
        for (int i = 0; i < count; ++i) {
            const RootRect area{number(-3000, 3000), number(-3000, 3000), number(640, 3840), number(480, 2400)};
            const double left = panel();
            const double top = panel();
            const RootRect work{area.x + left, area.y + top, area.width - left - panel(), area.height - top - panel()};
            monitors.push_back({{static_cast<std::uint64_t>(i), area}, work});
        }
        return monitors;
    }

    UnitRect randomUnitRect()
    {
        const double x = number(0, 8) / 16.0;
        const double y = number(0, 8) / 16.0;
        return {x, y, number(1, 8) / 16.0, number(1, 8) / 16.0};
    }

private:
    double number(int least, int greatest) { return std::uniform_int_distribution(least, greatest)(random); }
    double panel() { return number(0, 1) > 0.5 ? number(1, 90) : 0.0; }

    std::mt19937 random{GetParam()};
};

TEST_P(Arrangements, AWindowLandsExactlyOnTheDrawnFrame)
{
    for (int round = 0; round < 200; ++round) {
        const auto [screens, coordinates] = screenLayout(randomMonitors());
        const auto unit = randomUnitRect();
        for (const auto& screen : screens) {
            const auto drawn = coordinates.rootRect(drawnFrame(screen, unit));
            const auto placed = coordinates.rootRect(placement(screen, screens.front(), unit));
            EXPECT_TRUE(nearlyEqual(drawn, placed, 1e-9)) << logText(drawn) << " and " << logText(placed);
        }
    }
}

TEST_P(Arrangements, AFullFrameIsTheWorkArea)
{
    for (int round = 0; round < 200; ++round) {
        const auto monitors = randomMonitors();
        const auto [screens, coordinates] = screenLayout(monitors);
        for (std::size_t i = 0; i < screens.size(); ++i) {
            EXPECT_EQ(coordinates.rootRect(placement(screens[i], screens.front(), {0.0, 0.0, 1.0, 1.0})),
                      monitors[i].workArea);
        }
    }
}

TEST_P(Arrangements, BothFlipsAreTheWayToScreenCoordinates)
{
    for (int round = 0; round < 200; ++round) {
        const auto [screens, coordinates] = screenLayout(randomMonitors());
        const RootRect window{round * 7.0, round * 3.0, 400.0, 300.0};
        const auto ax = coordinates.axRect(window);
        const auto flipped = [&](double height) {
            return ScreenRect{ax.x, height - ax.y - ax.height, ax.width, ax.height};
        };
        EXPECT_EQ(flipped(screens.front().frame.height), coordinates.screenRect(window));
        EXPECT_EQ(flipped(topOfAllFrames(screens)), coordinates.screenRect(window));
    }
}

INSTANTIATE_TEST_SUITE_P(ScreenLayout, Arrangements, testing::Range(1U, 6U));

} // namespace
} // namespace quorvel::x11
