#include "platform/x11/painting/PixelAlignment.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

RoundedRectCommand shape(const DrawList& list)
{
    return std::get<RoundedRectCommand>(list.commands.at(0));
}

DrawList aligned(const DrawCommand& command, double scale = 1.0)
{
    return alignedToPixels({{command}}, {100, 100}, {static_cast<int>(100 * scale), static_cast<int>(100 * scale)},
                           scale);
}

TEST(PixelAlignment, LeavesWholePixelsAlone)
{
    auto command = filled({10, 20, 30, 40}, Color::white(), 5.0);
    command.shadow = Shadow{Color::black(), 7.0};
    EXPECT_EQ(aligned(command), (DrawList{{command}}));
}

TEST(PixelAlignment, PutsOuterEdgesOfStrokesBetweenPixels)
{
    // Outer edges at 9.3 and 40.9.
    const auto result = shape(aligned(stroked({10.3, 10.3, 29.6, 29.6}, Color::white(), 2.0)));
    EXPECT_EQ(result.rect, (ViewRect{10, 10, 30, 30}));
    EXPECT_EQ(result.stroke->width, 2.0);
}

TEST(PixelAlignment, MakesStrokesWholePixelsWide)
{
    EXPECT_EQ(shape(aligned(stroked({10, 10, 30, 30}, Color::white(), 0.3))).stroke->width, 1.0);
    EXPECT_EQ(shape(aligned(stroked({10, 10, 30, 30}, Color::white(), 2.6))).stroke->width, 3.0);
    EXPECT_EQ(shape(aligned(stroked({10, 10, 30, 30}, Color::white(), 0.0))).stroke->width, 0.0);
}

TEST(PixelAlignment, AnOddStrokeKeepsItsOuterEdge)
{
    const auto result = shape(aligned(stroked({1.5, 1.5, 97, 97}, Color::white(), 3.0)));
    EXPECT_EQ(result.rect, (ViewRect{1.5, 1.5, 97, 97}));
}

TEST(PixelAlignment, FillsTheAreaOfAFractionalView)
{
    const auto list = alignedToPixels({{filled({0, 0, 958, 525.5}, Color::white())}}, {958, 525.5}, {958, 525}, 1.0);
    EXPECT_EQ(shape(list).rect, (ViewRect{0, 0, 958, 525}));
}

TEST(PixelAlignment, ScalesEverythingButFonts)
{
    auto command = stroked({10, 10, 30, 30}, Color::white(), 2.0, 5.0);
    command.shadow = Shadow{Color::black(), 6.0};
    const auto result = shape(aligned(command, 2.0));
    EXPECT_EQ(result.rect, (ViewRect{20, 20, 60, 60}));
    EXPECT_EQ(result.stroke->width, 4.0);
    EXPECT_EQ(result.cornerRadius, 10.0);
    EXPECT_EQ(result.shadow->blurRadius, 12.0);
    const auto scaledText = std::get<TextCommand>(aligned(text("A", {1, 2, 3, 4}), 2.0).commands.at(0));
    EXPECT_EQ(scaledText.box, (ViewRect{2, 4, 6, 8}));
    EXPECT_EQ(scaledText.font.size, 20.0);
}

TEST(PixelAlignment, GrowsTextBoxesToWholePixels)
{
    const auto result = std::get<TextCommand>(aligned(text("A", {10.6, 10.4, 20.1, 5.2})).commands.at(0));
    EXPECT_EQ(result.box, (ViewRect{10, 10, 21, 6}));
}

TEST(PixelAlignment, NeverMakesNegativeSizes)
{
    const auto result = shape(aligned(stroked({50, 50, 0, 0}, Color::white(), 8.0)));
    EXPECT_EQ(result.rect.width, 0.0);
    EXPECT_EQ(result.rect.height, 0.0);
}

TEST(PixelAlignment, LeavesOutWhatNoScreenCanShow)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    auto hugeText = text("A", {0, 0, 10, 10});
    hugeText.font.size = 1e9;
    auto noText = text("A", {0, 0, 10, 10});
    noText.font.size = nan;
    const DrawList list{{filled({nan, 0, 1, 1}, Color::white()), filled({0, 0, infinity, 1}, Color::white()),
                         filled({0, 0, 1, 1}, Color::white(), nan), stroked({0, 0, 1, 1}, Color::white(), 1e12),
                         hugeText, noText, filled({0, 0, 1, 1}, Color::white())}};
    EXPECT_EQ(alignedToPixels(list, {100, 100}, {100, 100}, 1.0).commands.size(), 1U);
}

TEST(PixelAlignment, AnEmptyViewIsScaled)
{
    EXPECT_EQ(shape(alignedToPixels({{filled({1, 1, 2, 2}, Color::white())}}, {0, 0}, {0, 0}, 1.0)).rect,
              (ViewRect{1, 1, 2, 2}));
}

} // namespace
} // namespace quorvel::x11
