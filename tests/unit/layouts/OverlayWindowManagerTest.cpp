#include "layouts/OverlayWindowManager.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/Settings.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr ScreenRect primaryVisible{0.0, 25.0, 1440.0, 875.0};
constexpr WindowModel leftHalf{0.0, 0.0, 0.5, 1.0};
constexpr ScreenRect largeWindow{100.0, 100.0, 800.0, 700.0};

class OverlayWindowManagerTest : public testing::Test {
protected:
    OverlayWindowManagerTest() { desktop.screens.connect({{1, {0, 0, 1920, 1080}, {0, 0, 1920, 1055}}}); }

    const OverlayWindowRecord& window(std::size_t number) const { return *desktop.overlayWindows.all().at(number - 1); }

    std::size_t windowCount() const { return desktop.overlayWindows.all().size(); }

    // Shows a label for a window with those bounds and returns where it went.
    ScreenRect place(const ScreenRect& bounds, const std::optional<VisibleWindowInfo>& info = std::nullopt)
    {
        manager.showWindowLabel("A", info, bounds);
        return window(windowCount()).frame;
    }

    std::vector<ScreenPoint> placeOrigins(const ScreenRect& bounds, int count)
    {
        std::vector<ScreenPoint> origins;
        std::generate_n(std::back_inserter(origins), count, [&] { return place(bounds).origin(); });
        return origins;
    }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
    OverlayWindowManager manager{desktop.platform()};
};

VisibleWindowInfo infoWith(std::string appName, std::string windowTitle)
{
    return {{}, std::move(appName), std::move(windowTitle)};
}

class OverlayWindowManagerFrames : public OverlayWindowManagerTest {};

TEST_F(OverlayWindowManagerFrames, AFrameKeepsOnePointClearOnEachSide)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    EXPECT_EQ(window(1).frame, (ScreenRect{1.0, 26.0, 718.0, 873.0}));
    manager.showLayoutFrame("B", {0.25, 0.25, 0.75, 0.75}, {-1920.0, 50.0, 1920.0, 1005.0});
    EXPECT_EQ(window(2).frame, (ScreenRect{-1439.0, 302.25, 958.0, 500.5}));
    manager.showLayoutFrame("C", {0.5, 0.0, 1.0, 0.5}, {0.0, 900.0, 1920.0, 1055.0});
    EXPECT_EQ(window(3).frame, (ScreenRect{961.0, 901.0, 958.0, 525.5}));
}

TEST_F(OverlayWindowManagerFrames, AFrameIsLoggedBeforeAndAfterItsWindowIsMade)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    EXPECT_THAT(desktop.log.lines(), ElementsAre("OverlayWindowManager contentRect: (1.0, 26.0, 718.0, 873.0)",
                                                 "OverlayWindowManager frame: (1.0, 26.0, 718.0, 873.0)",
                                                 "📊 OverlayView: label=A, appName=nil, title=nil, shouldShow=false"));
    EXPECT_THAT(desktop.journal.entries({"Log.line(OverlayWindowManager", "OverlayWindows.createWindow"}),
                ElementsAre(StartsWith("Log.line(OverlayWindowManager contentRect"),
                            StartsWith("OverlayWindows.createWindow(1, (1.0, 26.0, 718.0, 873.0)"),
                            StartsWith("Log.line(OverlayWindowManager frame")));
}

TEST_F(OverlayWindowManagerFrames, AFrameIsNamedFilledPlacedAndThenShown)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    EXPECT_THAT(desktop.journal.entries({"OverlayWindow."}),
                ElementsAre("OverlayWindow.setFrameAutosaveName(1, A)", "OverlayWindow.setContent(1, 4)",
                            "OverlayWindow.setClipsToBounds(1, false)",
                            "OverlayWindow.setFrame(1, (1.0, 26.0, 718.0, 873.0))",
                            "OverlayWindow.orderFrontRegardless(1)"));
    EXPECT_EQ(window(1).frameAutosaveName, "A");
    EXPECT_TRUE(window(1).isVisible);
    EXPECT_TRUE(manager.isOverlayVisible());
}

TEST_F(OverlayWindowManagerFrames, AFrameIsAClickThroughWindowOnEverySpaceAboveMenus)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    EXPECT_EQ(window(1).description, (WindowDescription{.contentRect = {1.0, 26.0, 718.0, 873.0},
                                                        .styleMask = 0,
                                                        .level = 101,
                                                        .collectionBehavior = 321,
                                                        .hasShadow = false,
                                                        .ignoresMouseEvents = true,
                                                        .isOpaque = false,
                                                        .isReleasedWhenClosed = false,
                                                        .isDeferred = false}));
}

TEST_F(OverlayWindowManagerFrames, TheContentHasTheSizeOfTheFrame)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    const auto& background = std::get<RoundedRectCommand>(window(1).content.commands.front());
    EXPECT_EQ(background.rect, (ViewRect{0.0, 0.0, 718.0, 873.0}));
}

TEST_F(OverlayWindowManagerFrames, AFrameWithoutRoomIsEmptyAndNeverNegative)
{
    manager.showLayoutFrame("A", leftHalf, {});
    EXPECT_EQ(window(1).frame, (ScreenRect{1.0, 1.0, 0.0, 0.0}));
}

TEST_F(OverlayWindowManagerFrames, EachSettingIsReadOncePerFrame)
{
    desktop.journal.clear();
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    auto reads = desktop.journal.entries({"UserDefaults.object"});
    std::ranges::sort(reads);
    EXPECT_EQ(std::ranges::adjacent_find(reads), reads.end());
    EXPECT_THAT(reads, SizeIs(13));
}

class OverlayWindowManagerLegend : public OverlayWindowManagerTest {};

TEST_F(OverlayWindowManagerLegend, SitsTwentyPointsInFromTheTopRightCorner)
{
    // In the simulated font the heading and one row make a legend of 125 x 64 points.
    manager.showLegend({{"1", "Full", true}}, primaryVisible);
    EXPECT_EQ(window(1).frame, (ScreenRect{1440.0 - 125.0 - 20.0, 900.0 - 64.0 - 20.0, 125.0, 64.0}));
    manager.showLegend({{"1", "Full", true}}, {1440.0, 0.0, 1920.0, 1055.0});
    EXPECT_EQ(window(2).frame.origin(), (ScreenPoint{3360.0 - 145.0, 1055.0 - 84.0}));
    EXPECT_TRUE(window(1).isVisible);
}

TEST_F(OverlayWindowManagerLegend, LiesTwoLevelsAboveTheFrames)
{
    manager.showLegend({{"1", "Full", true}}, primaryVisible);
    EXPECT_EQ(window(1).description.level, 103);
    EXPECT_EQ(window(1).description.collectionBehavior, 321U);
    EXPECT_TRUE(window(1).description.ignoresMouseEvents);
    EXPECT_FALSE(window(1).description.hasShadow);
}

TEST_F(OverlayWindowManagerLegend, WithoutEntriesThereIsNoWindow)
{
    manager.showLegend({}, primaryVisible);
    EXPECT_EQ(windowCount(), 0U);
}

TEST_F(OverlayWindowManagerLegend, AloneItIsNoVisibleOverlay)
{
    manager.showLegend({{"1", "Full", true}}, primaryVisible);
    EXPECT_FALSE(manager.isOverlayVisible());
    manager.hideAll();
    EXPECT_TRUE(window(1).isClosed);
}

class OverlayWindowManagerLabels : public OverlayWindowManagerTest {};

TEST_F(OverlayWindowManagerLabels, ALabelIsABorderOverTheWindowAndABoxAboveIt)
{
    manager.showWindowLabel("A", std::nullopt, largeWindow);
    ASSERT_EQ(windowCount(), 2U);
    const auto& border = window(1);
    const auto& label = window(2);
    EXPECT_EQ(border.frame, largeWindow);
    EXPECT_EQ(border.description.level, 101);
    EXPECT_FALSE(border.description.hasShadow);
    EXPECT_EQ(label.frame, (ScreenRect{116.0, 500.0, 150.0, 284.0}));
    EXPECT_EQ(label.description.level, 102);
    EXPECT_TRUE(label.description.hasShadow);
    for (const auto* record : {&border, &label}) {
        EXPECT_EQ(record->description.collectionBehavior, 321U);
        EXPECT_TRUE(record->description.ignoresMouseEvents);
        EXPECT_FALSE(record->description.isReleasedWhenClosed);
        EXPECT_FALSE(record->description.isOpaque);
    }
    EXPECT_TRUE(manager.isOverlayVisible());
    EXPECT_THAT(desktop.journal.entries({"OverlayWindow.orderFront"}),
                ElementsAre("OverlayWindow.orderFrontRegardless(1)", "OverlayWindow.orderFrontRegardless(2)"));
}

TEST_F(OverlayWindowManagerLabels, BorderAndLabelFillTheirWindows)
{
    manager.showWindowLabel("A", infoWith("Safari", "Start page"), largeWindow);
    const auto& border = std::get<RoundedRectCommand>(window(1).content.commands.front());
    EXPECT_EQ(border.rect, (ViewRect{0.0, 0.0, 800.0, 700.0}));
    EXPECT_EQ(std::get<TextCommand>(window(2).content.commands.at(1)).text, "A");
    EXPECT_EQ(std::get<TextCommand>(window(2).content.commands.at(2)).text, "Safari");
    EXPECT_EQ(std::get<TextCommand>(window(2).content.commands.at(3)).text, "Start page");
}

TEST_F(OverlayWindowManagerLabels, TheSizeFollowsTheTextSizeOfTheSettings)
{
    const auto twentyCharacters = infoWith("Safari", std::string(20, 'x'));
    const auto sizeAt = [&](double textSize) {
        manager.hideAll();
        settings.setReal("wsTextSize", textSize);
        return place(largeWindow, twentyCharacters).size();
    };
    EXPECT_EQ(sizeAt(30.0), (Size{270.0, 165.0}));
    EXPECT_EQ(sizeAt(64.0), (Size{508.0, 284.0}));
    EXPECT_EQ(sizeAt(0.0), (Size{508.0, 284.0}));
    EXPECT_EQ(sizeAt(-3.0), (Size{508.0, 284.0}));
}

TEST_F(OverlayWindowManagerLabels, TheSizeIsTheSameWhereTheNamesAreNotShown)
{
    settings.setBoolean("showWindowInfo", false);
    EXPECT_EQ(place(largeWindow, infoWith("Safari", std::string(20, 'x'))).size(), (Size{508.0, 284.0}));
}

TEST_F(OverlayWindowManagerLabels, ASecondLabelInTheSamePlaceMovesToTheNextAnchor)
{
    EXPECT_THAT(placeOrigins(largeWindow, 2), ElementsAre(ScreenPoint{116.0, 500.0}, ScreenPoint{425.0, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, NineLabelsFindRoomInOneWindowAndTheTenthTakesThePreferredPlace)
{
    EXPECT_THAT(placeOrigins({0.0, 0.0, 1920.0, 1055.0}, 10),
                ElementsAre(ScreenPoint{16.0, 755.0}, ScreenPoint{885.0, 755.0}, ScreenPoint{16.0, 385.5},
                            ScreenPoint{1754.0, 755.0}, ScreenPoint{885.0, 385.5}, ScreenPoint{16.0, 16.0},
                            ScreenPoint{1754.0, 385.5}, ScreenPoint{885.0, 16.0}, ScreenPoint{1754.0, 16.0},
                            ScreenPoint{16.0, 755.0}));
    EXPECT_THAT(manager.occupiedLabelRects(), SizeIs(10));
}

TEST_F(OverlayWindowManagerLabels, ThePreferredPlaceComesFromTheSettings)
{
    settings.setString("wsLabelPosition", "center");
    EXPECT_THAT(placeOrigins(largeWindow, 3),
                ElementsAre(ScreenPoint{425.0, 308.0}, ScreenPoint{116.0, 308.0}, ScreenPoint{734.0, 308.0}));
}

TEST_F(OverlayWindowManagerLabels, AnUnknownPreferredPlaceIsTheTopLeft)
{
    settings.setString("wsLabelPosition", "Center");
    EXPECT_EQ(place(largeWindow).origin(), (ScreenPoint{116.0, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, AWindowNearbyKeepsClearOfAnEarlierLabel)
{
    place(largeWindow);
    EXPECT_EQ(place({150.0, 120.0, 800.0, 700.0}).origin(), (ScreenPoint{475.0, 520.0}));
}

TEST_F(OverlayWindowManagerLabels, AWindowBetweenTwoOthersKeepsClearOfBothLabels)
{
    EXPECT_EQ(place({100.0, 100.0, 800.0, 700.0}).x, 116.0);
    EXPECT_EQ(place({266.0, 100.0, 800.0, 700.0}).x, 282.0);
    EXPECT_EQ(place({250.0, 100.0, 800.0, 700.0}).origin(), (ScreenPoint{575.0, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, ALabelMayStickOutByAFifthOfItself)
{
    settings.setString("wsLabelPosition", "topRight");
    EXPECT_EQ(place({1500.0, 300.0, 465.0, 500.0}).origin(), (ScreenPoint{1799.0, 500.0}));
    manager.hideAll();
    EXPECT_EQ(place({1500.0, 300.0, 467.0, 500.0}).origin(), (ScreenPoint{1658.5, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, AWindowOverTheCornerOfTheScreenGetsTheAnchorThatIsOnIt)
{
    EXPECT_EQ(place({-100.0, 700.0, 400.0, 500.0}).origin(), (ScreenPoint{25.0, 808.0}));
}

TEST_F(OverlayWindowManagerLabels, WithoutScreensEveryLabelTakesThePreferredPlace)
{
    desktop.screens.connect({});
    EXPECT_THAT(placeOrigins(largeWindow, 2), ElementsAre(ScreenPoint{116.0, 500.0}, ScreenPoint{116.0, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, ALabelOffEveryScreenStillOccupiesItsPlace)
{
    EXPECT_EQ(place({3000.0, 0.0, 800.0, 700.0}).origin(), (ScreenPoint{3016.0, 400.0}));
    EXPECT_THAT(manager.occupiedLabelRects(), ElementsAre(ScreenRect{3016.0, 400.0, 150.0, 284.0}));
}

TEST_F(OverlayWindowManagerLabels, WideLabelsPushNarrowOnesOn)
{
    const ScreenRect bounds{0.0, 0.0, 1200.0, 900.0};
    const auto expectPlace = [&](const VisibleWindowInfo& info, const ScreenRect& expected) {
        const auto actual = place(bounds, info);
        EXPECT_TRUE(nearlyEqual(actual, expected, 1e-9)) << info.windowTitle;
    };
    expectPlace(infoWith("Safari", std::string(40, 'x')), {16.0, 600.0, 956.0, 284.0});
    expectPlace(infoWith("Safari", std::string(10, 'x')), {16.0, 308.0, 284.0, 284.0});
    expectPlace(infoWith("Terminal", ""), {480.4, 308.0, 239.2, 284.0});
}

TEST_F(OverlayWindowManagerLabels, FramesAndLegendDoNotFreeOccupiedPlaces)
{
    place(largeWindow);
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    manager.showLegend({{"1", "Full", true}}, primaryVisible);
    EXPECT_EQ(place(largeWindow).origin(), (ScreenPoint{425.0, 500.0}));
}

TEST_F(OverlayWindowManagerLabels, TheScreensAreAskedOncePerLabel)
{
    desktop.journal.clear();
    place(largeWindow);
    EXPECT_EQ(desktop.journal.count("Screens.screens"), 1U);
}

class OverlayWindowManagerHiding : public OverlayWindowManagerTest {};

TEST_F(OverlayWindowManagerHiding, ClosesEveryWindowInTheOrderOfCreation)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    manager.showLegend({{"1", "Full", true}}, primaryVisible);
    manager.showWindowLabel("A", std::nullopt, largeWindow);
    desktop.journal.clear();
    manager.hideAll();
    EXPECT_THAT(desktop.journal.entries({"OverlayWindow."}),
                ElementsAre("OverlayWindow.close(1)", "OverlayWindow.close(2)", "OverlayWindow.close(3)",
                            "OverlayWindow.close(4)"));
    EXPECT_FALSE(manager.isOverlayVisible());
    EXPECT_THAT(manager.occupiedLabelRects(), IsEmpty());
    EXPECT_THAT(desktop.overlayWindows.visible(), IsEmpty());
}

TEST_F(OverlayWindowManagerHiding, FreesThePlacesOfLabels)
{
    place(largeWindow);
    manager.hideAll();
    EXPECT_EQ(place(largeWindow).origin(), (ScreenPoint{116.0, 500.0}));
}

TEST_F(OverlayWindowManagerHiding, WithNothingShownDoesNothing)
{
    manager.hideAll();
    EXPECT_THAT(desktop.journal.entries({"OverlayWindow"}), IsEmpty());
}

TEST_F(OverlayWindowManagerHiding, EveryShowingMakesNewWindows)
{
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    manager.hideAll();
    manager.showLayoutFrame("A", leftHalf, primaryVisible);
    EXPECT_EQ(windowCount(), 2U);
    EXPECT_THAT(desktop.overlayWindows.visible(), SizeIs(1));
}

} // namespace
} // namespace quorvel
