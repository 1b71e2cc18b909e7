#include "app/CycledWindows.h"

#include <vector>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

constexpr WindowInfo a{1, {0, 0, 100, 100}};
constexpr WindowInfo b{2, {200, 0, 100, 100}};
constexpr WindowInfo c{3, {400, 0, 100, 100}};

using Windows = std::vector<WindowInfo>;

TEST(CycledWindows, TheFirstEntryWithinTwoPointsIsTheOwnOne)
{
    const CycledWindows windows({a, b, {9, {201, 0, 100, 100}}}, AxRect{201.9, 1.9, 98.1, 100});
    EXPECT_EQ(windows.currentIndex(), 1U);
    EXPECT_EQ(windows.ownEntry(), 1U);
}

TEST(CycledWindows, TwoPointsOffIsAnotherWindow)
{
    const CycledWindows windows({a, b}, AxRect{202, 0, 100, 100});
    EXPECT_EQ(windows.currentIndex(), 0U);
    EXPECT_EQ(windows.ownEntry(), std::nullopt);
}

TEST(CycledWindows, AWindowOfUnknownPlaceIsNotListed)
{
    const CycledWindows windows({a, b}, std::nullopt);
    EXPECT_EQ(windows.currentIndex(), 0U);
    EXPECT_EQ(windows.ownEntry(), std::nullopt);
}

TEST(CycledWindows, StepsGoRoundBothEnds)
{
    CycledWindows windows({a, b, c}, a.bounds);
    windows.step(CycleDirection::backwards);
    EXPECT_EQ(windows.currentIndex(), 2U);
    windows.step(CycleDirection::forwards);
    windows.step(CycleDirection::forwards);
    EXPECT_EQ(windows.currentIndex(), 1U);
    EXPECT_EQ(windows.ownEntry(), 0U);
}

TEST(CycledWindows, TheEntryFollowsTheWindow)
{
    CycledWindows windows({a, b}, b.bounds);
    windows.record({300, 50, 120, 120});
    windows.record({310, 50, 120, 120});
    EXPECT_EQ(windows.windows(), (Windows{a, {2, {310, 50, 120, 120}}}));
}

TEST(CycledWindows, AWindowThatIsNotListedLeavesNoRecord)
{
    CycledWindows windows({a, b}, AxRect{700, 0, 100, 100});
    windows.record(a.bounds);
    EXPECT_EQ(windows.windows(), (Windows{a, b}));
    windows.removeCurrent();
    EXPECT_EQ(windows.windows(), (Windows{a, b}));
}

TEST(CycledWindows, AnEnteredWindowIsRecordedWhereItsEntryIs)
{
    CycledWindows windows({a, b, c}, a.bounds);
    windows.enter(2);
    EXPECT_EQ(windows.currentIndex(), 2U);
    EXPECT_EQ(windows.ownEntry(), 2U);
    windows.record({400, 90, 100, 100});
    EXPECT_EQ(windows.windows(), (Windows{a, b, {3, {400, 90, 100, 100}}}));
}

TEST(CycledWindows, RemovingTakesEveryEntryAtTheRecordedPlace)
{
    CycledWindows windows({a, {9, {1.9, 0, 100, 100}}, {8, {2, 0, 100, 100}}, b}, a.bounds);
    windows.removeCurrent();
    EXPECT_EQ(windows.windows(), (Windows{{8, {2, 0, 100, 100}}, b}));
    EXPECT_EQ(windows.currentIndex(), 0U);
    EXPECT_EQ(windows.ownEntry(), std::nullopt);
}

TEST(CycledWindows, RemovingTheLastEntryGoesToTheOneBefore)
{
    CycledWindows windows({a, b, c}, c.bounds);
    windows.removeCurrent();
    EXPECT_EQ(windows.currentIndex(), 1U);
}

TEST(CycledWindows, RemovingTheOnlyEntryLeavesNone)
{
    CycledWindows windows({a}, a.bounds);
    windows.removeCurrent();
    EXPECT_TRUE(windows.windows().empty());
    EXPECT_EQ(windows.currentIndex(), 0U);
}

} // namespace
} // namespace quorvel
