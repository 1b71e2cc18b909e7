#include "tests/unit/layouts/OverlayViewsFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class LayoutShortcutsLegendViewTest : public OverlayViewsFixture {};

TEST_F(LayoutShortcutsLegendViewTest, ListsTheDigitsUnderAHeading)
{
    const auto drawing = legend({{"1", "Full", true}, {"2", "Centered", false}});
    const auto& list = drawing.content;
    ASSERT_THAT(list.commands, SizeIs(9));
    EXPECT_THAT(textsOf(list), ElementsAre("Jump to layout", "1", "Full", "2", "Centered"));

    EXPECT_EQ(textAt(list, 2).font, (Font{11.0, FontWeight::semibold}));
    EXPECT_EQ(textAt(list, 2).color, Color::white().withAlpha(0.6));

    EXPECT_EQ(shapeAt(list, 3).fill, desktop.systemColors.accent());
    EXPECT_EQ(shapeAt(list, 3).cornerRadius, 5.0);
    EXPECT_EQ(textAt(list, 4).font, (Font{12.0, FontWeight::bold}));
    EXPECT_EQ(textAt(list, 4).alignment, TextAlignment::center);
    EXPECT_EQ(textAt(list, 5).font, (Font{12.0, FontWeight::semibold}));
    EXPECT_EQ(textAt(list, 5).color, Color::white());

    EXPECT_EQ(shapeAt(list, 6).fill, Color::white().withAlpha(0.15));
    EXPECT_EQ(textAt(list, 7).color, Color::white());
    EXPECT_EQ(textAt(list, 8).font, (Font{12.0, FontWeight::regular}));
}

TEST_F(LayoutShortcutsLegendViewTest, IsAsLargeAsItsContentNeeds)
{
    // The heading is 101 x 14 points, a row 20 points high; "Centered" needs 58 points beside its badge.
    const auto drawing = legend({{"1", "Full", true}, {"2", "Centered", false}});
    EXPECT_EQ(drawing.fittingSize, (Size{125.0, 90.0}));
    EXPECT_EQ(textAt(drawing.content, 2).box, (ViewRect{12.0, 12.0, 101.0, 14.0}));
    EXPECT_EQ(shapeAt(drawing.content, 3).rect, (ViewRect{12.0, 32.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 4).box, (ViewRect{12.0, 32.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 5).box, (ViewRect{40.0, 32.0, 32.0, 20.0}));
    EXPECT_EQ(shapeAt(drawing.content, 6).rect, (ViewRect{12.0, 58.0, 20.0, 20.0}));
    EXPECT_EQ(textAt(drawing.content, 8).box, (ViewRect{40.0, 58.0, 58.0, 20.0}));

    const auto wide = legend({{"1", "Main Left, Two Stacked Right", false}});
    EXPECT_EQ(wide.fittingSize, (Size{12.0 + 28.0 + 202.0 + 12.0, 64.0}));
}

TEST_F(LayoutShortcutsLegendViewTest, LiesOnADarkPlateWithAFineBorder)
{
    const auto drawing = legend({{"1", "Full", true}});
    const auto& plate = shapeAt(drawing.content, 0);
    EXPECT_EQ(plate.rect, (ViewRect{0.0, 0.0, drawing.fittingSize.width, drawing.fittingSize.height}));
    EXPECT_EQ(plate.cornerRadius, 10.0);
    EXPECT_EQ(plate.backing, Backing::solid);
    EXPECT_EQ(plate.fill, Color::black().withAlpha(0.78));
    EXPECT_EQ(shapeAt(drawing.content, 1).stroke, (Stroke{Color::white().withAlpha(0.12), 1.0}));
}

TEST_F(LayoutShortcutsLegendViewTest, KeepsTheGivenOrder)
{
    EXPECT_THAT(textsOf(legend({{"3", "C", false}, {"1", "A", false}}).content),
                ElementsAre("Jump to layout", "3", "C", "1", "A"));
}

TEST_F(LayoutShortcutsLegendViewTest, MeasuresEveryTextOnce)
{
    desktop.journal.clear();
    legend({{"1", "Full", true}, {"2", "Centered", false}, {"3", "Side", false}});
    EXPECT_EQ(desktop.journal.count("TextMetrics.measure"), 4U);
}

} // namespace
} // namespace quorvel
