#include "platform/x11/windows/Placement.h"

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

using Geometry = WindowManager::Geometry;

constexpr Extents frame{1, 2, 20, 4}; // left, right, top, bottom

PlacementTarget target(double x, double y, double width, double height)
{
    return {RootPoint{x, y}, Size{width, height}};
}

// A window whose outer edge is that rectangle.
WindowSnapshot windowAt(double x, double y, double width, double height)
{
    WindowSnapshot window;
    window.frame = frame;
    window.isFrameDescribed = true;
    window.client = {x + frame.left, y + frame.top, width - frame.left - frame.right,
                     height - frame.top - frame.bottom};
    return window;
}

const PlacementTarget wanted = target(300, 200, 800, 600);
const Geometry request{300, 200, 797, 576};
const WindowSnapshot away = windowAt(10, 20, 400, 300);
const WindowSnapshot there = windowAt(300, 200, 800, 600);

TEST(WholePixels, EdgesAreRoundedSoThatNeighboursKeepTouching)
{
    EXPECT_EQ(wholePixels(target(0, 0.4, 33.4, 10.2)), target(0, 0, 33, 11));
    EXPECT_EQ(wholePixels(target(33.4, 0.4, 33.2, 10.2)), target(33, 0, 34, 11));
    EXPECT_EQ(wholePixels(target(-10.5, 0, 10.5, 1)), target(-11, 0, 11, 1));
}

TEST(WholePixels, NothingGetsSmallerThanAPixel)
{
    EXPECT_EQ(wholePixels(target(5.1, 5.1, 0.2, 0)), target(5, 5, 1, 1));
}

TEST(WholePixels, WhatIsAbsentStaysAbsent)
{
    EXPECT_EQ(wholePixels({RootPoint{1.6, 2.4}, {}}), (PlacementTarget{RootPoint{2, 2}, {}}));
    EXPECT_EQ(wholePixels({{}, Size{10.6, 20.4}}), (PlacementTarget{{}, Size{11, 20}}));
}

TEST(PlacementOffset, IsTheWayFromTheOuterEdgeToTheTarget)
{
    EXPECT_EQ(offsetTo(wanted, windowAt(301, 198, 790, 603)), (PlacementOffset{-1, 2, 10, -3}));
    EXPECT_EQ(offsetTo({RootPoint{0, 0}, {}}, windowAt(5, 6, 70, 80)), (PlacementOffset{-5, -6, 0, 0}));
    EXPECT_EQ(offsetTo({{}, Size{100, 100}}, windowAt(5, 6, 70, 80)), (PlacementOffset{0, 0, 30, 20}));
}

TEST(PlacementOffset, DoesNotCountAnInvisibleShadow)
{
    auto window = windowAt(300, 200, 800, 600);
    window.shadow = {26, 26, 23, 29};
    EXPECT_EQ(offsetTo(wanted, window), (PlacementOffset{-26, -23, 52, 52}));
}

TEST(PlacementRequest, HoldsTheFramesCornerAndTheClientsSize)
{
    EXPECT_EQ(placementRequest(wanted, away, {}), request);
    EXPECT_EQ(placementRequest(wanted, away, {1, 2, 3, 4}), (Geometry{301, 202, 800, 580}));
}

TEST(PlacementRequest, ReachesFurtherOutWhereTheClientHasAShadow)
{
    WindowSnapshot window;
    window.shadow = {26, 26, 23, 29};
    EXPECT_EQ(placementRequest(wanted, window, {}), (Geometry{274, 177, 852, 652}));
}

TEST(PlacementRequest, AsksForNoLessThanAPixel)
{
    EXPECT_EQ(placementRequest(target(0, 0, 2, 2), away, {}), (Geometry{0, 0, 1, 1}));
}

TEST(PlacementRequest, NamesOnlyWhatShallChange)
{
    EXPECT_EQ(placementRequest({RootPoint{3, 4}, {}}, away, {}), (Geometry{3, 4, {}, {}}));
    EXPECT_EQ(placementRequest({{}, Size{103, 124}}, away, {}), (Geometry{{}, {}, 100, 100}));
}

TEST(Placement, ThatSucceedsTakesOneRequest)
{
    Placement placement(wanted, Anchor::frame);
    const auto first = placement.begin(away);
    EXPECT_FALSE(first.leavesState);
    EXPECT_EQ(first.geometry, request);
    EXPECT_TRUE(placement.isFulfilledBy(there));
    EXPECT_TRUE(placement.settle(there).isEmpty());
    EXPECT_FALSE(placement.hasProvedClientAnchor());
}

TEST(Placement, OfABoundWindowBeginsWithTheEndOfThatState)
{
    for (const auto state : {&WindowSnapshot::isMaximized, &WindowSnapshot::isFullscreen}) {
        auto bound = away;
        bound.*state = true;
        bound.frame = {};
        Placement placement(wanted, Anchor::frame);
        const auto first = placement.begin(bound);
        EXPECT_TRUE(first.leavesState);
        EXPECT_FALSE(first.geometry);
        EXPECT_TRUE(placement.reconsider(bound).isEmpty());
        EXPECT_EQ(placement.reconsider(away).geometry, request);
    }
}

TEST(Placement, OfAFullscreenWindowWaitsForItsFrame)
{
    auto covering = away;
    covering.isFullscreen = true;
    covering.frame = {};
    auto bare = covering;
    bare.isFullscreen = false;
    Placement placement(wanted, Anchor::frame);
    placement.begin(covering);
    EXPECT_TRUE(placement.reconsider(bare).isEmpty());
    EXPECT_EQ(placement.reconsider(away).geometry, request);
}

TEST(Placement, OfAFullscreenWindowWithoutAFrameGoesOnOnceAllIsQuiet)
{
    auto bare = away;
    bare.frame = {};
    auto covering = bare;
    covering.isFullscreen = true;
    Placement placement(wanted, Anchor::frame);
    placement.begin(covering);
    EXPECT_TRUE(placement.reconsider(bare).isEmpty());
    EXPECT_TRUE(placement.settle(bare).geometry);
}

TEST(Placement, OfAWindowThatStaysBoundAsksForTheEndOfThatStateAgain)
{
    auto bound = away;
    bound.isMaximized = true;
    Placement placement(wanted, Anchor::frame);
    placement.begin(bound);
    const auto second = placement.settle(bound);
    EXPECT_TRUE(second.leavesState);
    EXPECT_FALSE(second.geometry);
    EXPECT_EQ(placement.reconsider(away).geometry, request);
}

TEST(Placement, IsReconsideredOnlyWhereTheFrameHasChanged)
{
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    EXPECT_TRUE(placement.reconsider(away).isEmpty());
    auto changed = away;
    changed.frame = {};
    EXPECT_EQ(placement.reconsider(changed).geometry, (Geometry{300, 200, 800, 600}));
}

TEST(Placement, IsCorrectedByWhatIsMissingTwiceAtMost)
{
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    const auto short1 = windowAt(302, 200, 800, 590);
    EXPECT_EQ(placement.settle(short1).geometry, (Geometry{298, 200, 797, 586}));
    EXPECT_EQ(placement.settle(short1).geometry, (Geometry{296, 200, 797, 596}));
    EXPECT_TRUE(placement.settle(short1).isEmpty());
}

TEST(Placement, DoesNotCorrectWhatCameOfARequestForAnotherFrame)
{
    auto bare = away;
    bare.frame = {};
    Placement placement(wanted, Anchor::frame);
    EXPECT_EQ(placement.begin(bare).geometry, (Geometry{300, 200, 800, 600}));
    EXPECT_EQ(placement.settle(windowAt(300, 200, 803, 624)).geometry, request);
    EXPECT_TRUE(placement.settle(there).isEmpty());
}

TEST(Placement, IsNotReconsideredForAFrameThatIsMeasuredOnTheWay)
{
    auto covering = away;
    covering.isFullscreen = true;
    covering.frame = {};
    auto halfway = away;
    halfway.isFrameDescribed = false;
    halfway.frame = {0, 1200, 0, 800};
    Placement placement(wanted, Anchor::frame);
    placement.begin(covering);
    EXPECT_TRUE(placement.reconsider(halfway).isEmpty());
    EXPECT_EQ(placement.settle(away).geometry, request);
}

TEST(Placement, LearnsThatAWindowManagerPlacesClients)
{
    // The client, not the frame, landed on the corner.
    const auto offByTheFrame = windowAt(299, 180, 800, 600);
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    EXPECT_EQ(placement.settle(offByTheFrame).geometry, (Geometry{301, 220, 797, 576}));
    EXPECT_FALSE(placement.hasProvedClientAnchor());
    EXPECT_TRUE(placement.settle(there).isEmpty());
    EXPECT_TRUE(placement.hasProvedClientAnchor());
}

TEST(Placement, DoesNotTakeAnyOtherOffsetForThat)
{
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    placement.settle(windowAt(300, 180, 800, 600));
    EXPECT_TRUE(placement.settle(there).isEmpty());
    EXPECT_FALSE(placement.hasProvedClientAnchor());
}

TEST(Placement, WithAKnownClientAnchorIsRightAtOnce)
{
    Placement placement(wanted, Anchor::client);
    EXPECT_EQ(placement.begin(away).geometry, (Geometry{301, 220, 797, 576}));
    EXPECT_TRUE(placement.settle(there).isEmpty());
    EXPECT_TRUE(placement.hasProvedClientAnchor());
}

TEST(Placement, OfAClientWithABorderCountsTheBorderAsFrame)
{
    auto window = away;
    window.border = 1;
    EXPECT_EQ(Placement(wanted, Anchor::client).begin(window).geometry, (Geometry{300, 219, 797, 576}));
}

TEST(Placement, OfAWindowThatIsSizedInStepsCorrectsOnlyItsPosition)
{
    auto rounded = windowAt(303, 200, 790, 595);
    rounded.hasSizeIncrements = true;
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    EXPECT_FALSE(placement.isFulfilledBy(rounded));
    EXPECT_EQ(placement.settle(rounded).geometry, (Geometry{297, 200, 797, 576}));
    rounded.client.x -= 3;
    EXPECT_TRUE(placement.isFulfilledBy(rounded));
    EXPECT_TRUE(placement.settle(rounded).isEmpty());
}

TEST(Placement, IsRepeatedForASuccessorOfTheWindowManager)
{
    Placement placement(wanted, Anchor::frame);
    placement.begin(away);
    EXPECT_EQ(placement.repeat(away).geometry, request);
    auto bound = away;
    bound.isFullscreen = true;
    EXPECT_TRUE(placement.repeat(bound).leavesState);
}

TEST(Placement, KnowsItsTarget)
{
    const Placement placement(wanted, Anchor::frame);
    EXPECT_TRUE(placement.hasTarget(target(300, 200, 800, 600)));
    EXPECT_FALSE(placement.hasTarget(target(300, 200, 800, 601)));
    EXPECT_FALSE(placement.hasTarget({RootPoint{300, 200}, {}}));
}

} // namespace
} // namespace quorvel::x11
