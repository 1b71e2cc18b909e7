#include "layouts/LabelPlacement.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

using testing::ElementsAreArray;
using enum LabelPosition;

constexpr Size labelOfOneLetter{150.0, 284.0};

std::optional<VisibleWindowInfo> infoWith(std::string appName, std::string windowTitle)
{
    return VisibleWindowInfo{{}, std::move(appName), std::move(windowTitle)};
}

void expectNear(const Size& actual, const Size& expected)
{
    EXPECT_NEAR(actual.width, expected.width, 1e-9);
    EXPECT_NEAR(actual.height, expected.height, 1e-9);
}

std::vector<Screen> screensWith(const ScreenRect& visibleFrame)
{
    return {{1, visibleFrame, visibleFrame}};
}

TEST(LabelPlacement, TheSizeFollowsTheLongestText)
{
    expectNear(windowLabelSize(64.0, "A", std::nullopt), {150.0, 284.0});
    expectNear(windowLabelSize(64.0, "A", infoWith("Safari", "")), {194.4, 284.0});
    expectNear(windowLabelSize(64.0, "A", infoWith("Safari", std::string(20, 'x'))), {508.0, 284.0});
    expectNear(windowLabelSize(64.0, "A", infoWith(std::string(40, 'x'), "Mail")), {956.0, 284.0});
    expectNear(windowLabelSize(64.0, std::string(20, 'x'), infoWith("Safari", "")), {508.0, 284.0});
}

TEST(LabelPlacement, TheWidthIsAtLeast150)
{
    expectNear(windowLabelSize(64.0, "A", infoWith("Mail", "")), {150.0, 284.0});
    expectNear(windowLabelSize(64.0, "A", infoWith("Notes", "")), {172.0, 284.0});
    expectNear(windowLabelSize(96.0, "A", std::nullopt), {150.0, 396.0});
}

TEST(LabelPlacement, TheSizeFollowsTheFont)
{
    expectNear(windowLabelSize(30.0, "A", infoWith("Safari", std::string(20, 'x'))), {270.0, 165.0});
}

TEST(LabelPlacement, CharactersAreCountedAsAPersonDoes)
{
    expectNear(windowLabelSize(64.0, "A", infoWith("Übersetzung", "")), {64.0 * 0.35 * 11.0 + 60.0, 284.0});
    std::string fiveFamilies;
    for (int count = 0; count < 5; ++count) {
        fiveFamilies += "👩‍👩‍👧‍👦";
    }
    expectNear(windowLabelSize(64.0, "A", infoWith(fiveFamilies, "")), {172.0, 284.0});
}

TEST(LabelPlacement, AnAnchorKeepsSixteenPointsFromTheEdgesItNames)
{
    const ScreenRect bounds{100.0, 200.0, 800.0, 700.0};
    const auto rect = [&](LabelPosition anchor) { return labelRect(anchor, bounds, labelOfOneLetter); };
    EXPECT_EQ(rect(topLeft), (ScreenRect{116.0, 600.0, 150.0, 284.0}));
    EXPECT_EQ(rect(top), (ScreenRect{425.0, 600.0, 150.0, 284.0}));
    EXPECT_EQ(rect(topRight), (ScreenRect{734.0, 600.0, 150.0, 284.0}));
    EXPECT_EQ(rect(leading), (ScreenRect{116.0, 408.0, 150.0, 284.0}));
    EXPECT_EQ(rect(center), (ScreenRect{425.0, 408.0, 150.0, 284.0}));
    EXPECT_EQ(rect(trailing), (ScreenRect{734.0, 408.0, 150.0, 284.0}));
    EXPECT_EQ(rect(bottomLeft), (ScreenRect{116.0, 216.0, 150.0, 284.0}));
    EXPECT_EQ(rect(bottom), (ScreenRect{425.0, 216.0, 150.0, 284.0}));
    EXPECT_EQ(rect(bottomRight), (ScreenRect{734.0, 216.0, 150.0, 284.0}));
}

TEST(LabelPlacement, EveryAnchorIsACandidateOnceAndThePreferredOneIsFirst)
{
    for (const auto preferred : allLabelPositions) {
        const auto candidates = anchorCandidates(preferred);
        EXPECT_EQ(candidates.front(), preferred);
        std::vector<LabelPosition> sorted(candidates.begin(), candidates.end());
        std::ranges::sort(sorted);
        EXPECT_THAT(sorted, ElementsAreArray(allLabelPositions)) << rawValue(preferred);
    }
}

TEST(LabelPlacement, NeighboursAreTriedBeforeTheRest)
{
    EXPECT_THAT(anchorCandidates(topLeft),
                ElementsAreArray({topLeft, top, leading, topRight, center, bottomLeft, trailing, bottom, bottomRight}));
    EXPECT_THAT(anchorCandidates(top),
                ElementsAreArray({top, topLeft, topRight, center, leading, trailing, bottom, bottomLeft, bottomRight}));
    EXPECT_THAT(anchorCandidates(topRight),
                ElementsAreArray({topRight, top, trailing, topLeft, center, bottomRight, leading, bottom, bottomLeft}));
    EXPECT_THAT(anchorCandidates(leading),
                ElementsAreArray({leading, topLeft, bottomLeft, center, top, bottom, trailing, topRight, bottomRight}));
    EXPECT_THAT(anchorCandidates(center),
                ElementsAreArray({center, top, bottom, leading, trailing, topLeft, topRight, bottomLeft, bottomRight}));
    EXPECT_THAT(anchorCandidates(trailing),
                ElementsAreArray({trailing, topRight, bottomRight, center, top, bottom, leading, topLeft, bottomLeft}));
    EXPECT_THAT(anchorCandidates(bottomLeft),
                ElementsAreArray({bottomLeft, bottom, leading, bottomRight, center, topLeft, trailing, top, topRight}));
    EXPECT_THAT(anchorCandidates(bottom),
                ElementsAreArray({bottom, bottomLeft, bottomRight, center, leading, trailing, top, topLeft, topRight}));
    EXPECT_THAT(anchorCandidates(bottomRight),
                ElementsAreArray({bottomRight, bottom, trailing, bottomLeft, center, topRight, leading, top, topLeft}));
}

TEST(LabelPlacement, FourFifthsOfALabelMustLieOnOneScreen)
{
    const auto screens = screensWith({0.0, 0.0, 1000.0, 800.0});
    EXPECT_TRUE(isOnScreen({0.0, 0.0, 100.0, 100.0}, screens));
    EXPECT_TRUE(isOnScreen({-20.0, 0.0, 100.0, 100.0}, screens));
    EXPECT_FALSE(isOnScreen({-21.0, 0.0, 100.0, 100.0}, screens));
    EXPECT_FALSE(isOnScreen({2000.0, 0.0, 100.0, 100.0}, screens));
    EXPECT_FALSE(isOnScreen({0.0, 0.0, 100.0, 100.0}, {}));
}

TEST(LabelPlacement, PartsOnTwoScreensDoNotAddUp)
{
    const std::vector<Screen> screens{{1, {}, {0.0, 0.0, 1000.0, 800.0}}, {2, {}, {1000.0, 0.0, 1000.0, 800.0}}};
    EXPECT_FALSE(isOnScreen({950.0, 0.0, 100.0, 100.0}, screens));
    EXPECT_TRUE(isOnScreen({985.0, 0.0, 100.0, 100.0}, screens));
}

TEST(LabelPlacement, TheVisibleFrameCountsAndNotTheWholeScreen)
{
    const std::vector<Screen> screens{{1, {0.0, 0.0, 1000.0, 800.0}, {0.0, 100.0, 1000.0, 700.0}}};
    EXPECT_FALSE(isOnScreen({0.0, 0.0, 100.0, 100.0}, screens));
}

TEST(LabelPlacement, LabelsThatOnlyTouchAreNotClearOfEachOther)
{
    const auto screens = screensWith({0.0, 0.0, 1920.0, 1055.0});
    const ScreenRect bounds{250.0, 100.0, 800.0, 700.0};
    const std::vector<ScreenRect> occupied{{116.0, 500.0, 150.0, 284.0}};
    EXPECT_EQ(resolveAnchor(topLeft, bounds, labelOfOneLetter, occupied, screens), top);
    const ScreenRect halfAPointFurther{250.5, 100.0, 800.0, 700.0};
    EXPECT_EQ(resolveAnchor(topLeft, halfAPointFurther, labelOfOneLetter, occupied, screens), topLeft);
}

TEST(LabelPlacement, ThePreferredAnchorHoldsWhereNoneIsFree)
{
    const auto screens = screensWith({0.0, 0.0, 1920.0, 1055.0});
    const std::vector<ScreenRect> everything{{0.0, 0.0, 1920.0, 1055.0}};
    EXPECT_EQ(resolveAnchor(trailing, {100.0, 100.0, 800.0, 700.0}, labelOfOneLetter, everything, screens), trailing);
    EXPECT_EQ(resolveAnchor(bottom, {100.0, 100.0, 800.0, 700.0}, labelOfOneLetter, {}, {}), bottom);
}

TEST(LabelPlacement, ALabelThatSticksOutByMoreThanAFifthMovesOn)
{
    const auto screens = screensWith({0.0, 0.0, 1920.0, 1055.0});
    EXPECT_EQ(resolveAnchor(topRight, {1500.0, 300.0, 465.0, 500.0}, labelOfOneLetter, {}, screens), topRight);
    EXPECT_EQ(resolveAnchor(topRight, {1500.0, 300.0, 467.0, 500.0}, labelOfOneLetter, {}, screens), top);
    EXPECT_EQ(resolveAnchor(topLeft, {-100.0, 700.0, 400.0, 500.0}, labelOfOneLetter, {}, screens), center);
}

} // namespace
} // namespace quorvel
