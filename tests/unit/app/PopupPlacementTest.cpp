#include "app/PopupPlacement.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

constexpr ScreenRect visibleFrame{0, 0, 1000, 800};

TEST(PopupPlacement, APopupThatIsTooLargeKeepsItsTopLeftCorner)
{
    EXPECT_EQ(popupRect(LabelPosition::bottomRight, visibleFrame, {1200, 900}), (ScreenRect{20, -120, 1200, 900}));
}

TEST(PopupPlacement, APopupLiesOnWholePoints)
{
    EXPECT_EQ(popupRect(LabelPosition::center, visibleFrame, {101, 101}), (ScreenRect{450, 350, 101, 101}));
}

TEST(PopupPlacement, ACompanionGoesBelow)
{
    const auto rect = companionRect(LabelPosition::center, visibleFrame, {100, 100}, {400, 300, 200, 200});
    EXPECT_EQ(rect, (ScreenRect{450, 188, 100, 100}));
}

TEST(PopupPlacement, ACompanionSharesTheEdgeThatTheAnchorNames)
{
    const ScreenRect other{400, 300, 200, 200};
    EXPECT_EQ(companionRect(LabelPosition::topLeft, visibleFrame, {100, 100}, other).x, 400);
    EXPECT_EQ(companionRect(LabelPosition::trailing, visibleFrame, {100, 100}, other).maxX(), 600);
}

TEST(PopupPlacement, WithoutRoomBelowACompanionGoesAbove)
{
    const auto rect = companionRect(LabelPosition::bottom, visibleFrame, {100, 100}, {400, 20, 200, 200});
    EXPECT_EQ(rect, (ScreenRect{450, 232, 100, 100}));
}

TEST(PopupPlacement, WithoutRoomAboveACompanionGoesToTheRight)
{
    const auto rect = companionRect(LabelPosition::center, visibleFrame, {100, 100}, {400, 20, 200, 760});
    EXPECT_EQ(rect, (ScreenRect{612, 680, 100, 100}));
}

TEST(PopupPlacement, WithoutRoomToTheRightACompanionGoesToTheLeft)
{
    const auto rect = companionRect(LabelPosition::trailing, visibleFrame, {100, 100}, {780, 20, 200, 760});
    EXPECT_EQ(rect, (ScreenRect{668, 680, 100, 100}));
}

TEST(PopupPlacement, WithoutRoomAnywhereACompanionCoversTheOtherAndStaysOnScreen)
{
    const auto rect = companionRect(LabelPosition::center, visibleFrame, {100, 100}, {20, 20, 960, 760});
    EXPECT_EQ(rect, (ScreenRect{450, 20, 100, 100}));
}

} // namespace
} // namespace quorvel
