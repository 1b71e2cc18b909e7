#include "tests/unit/layouts/OverlayViewsFixture.h"

namespace quorvel {
namespace {

using testing::SizeIs;

class WindowBorderOverlayTest : public OverlayViewsFixture {};

TEST_F(WindowBorderOverlayTest, FillsItsWindowAndKeepsTheStrokeInside)
{
    const auto list = border();
    ASSERT_THAT(list.commands, SizeIs(2));
    EXPECT_EQ(shapeAt(list, 0).rect, (ViewRect{0.0, 0.0, 800.0, 600.0}));
    EXPECT_EQ(shapeAt(list, 0).fill, Color::bytes(136, 0, 212, 255));
    EXPECT_EQ(shapeAt(list, 0).cornerRadius, 8.0);
    EXPECT_EQ(shapeAt(list, 0).cornerStyle, CornerStyle::continuous);
    EXPECT_EQ(shapeAt(list, 0).backing, Backing::open);
    EXPECT_EQ(shapeAt(list, 1).rect, (ViewRect{1.5, 1.5, 797.0, 597.0}));
    EXPECT_EQ(shapeAt(list, 1).cornerRadius, 6.5);
    EXPECT_EQ(shapeAt(list, 1).stroke, (Stroke{Color::bytes(0, 212, 255), 3.0}));
    EXPECT_EQ(shapeAt(list, 1).fill, std::nullopt);
}

TEST_F(WindowBorderOverlayTest, AStrokeTenWideIsInsetByFive)
{
    settings.setReal("wsBorderWidth", 10.0);
    EXPECT_EQ(shapeAt(border(), 1).rect, (ViewRect{5.0, 5.0, 790.0, 590.0}));
}

TEST_F(WindowBorderOverlayTest, AColourThatCannotBeReadIsBlue)
{
    settings.setString("wsBorderColor", "#1");
    settings.setString("wsBackgroundColor", "");
    const auto blue = desktop.systemColors.blue();
    EXPECT_EQ(shapeAt(border(), 0).fill, blue.withAlpha(0.5));
    EXPECT_EQ(shapeAt(border(), 1).stroke->color, blue);
}

} // namespace
} // namespace quorvel
