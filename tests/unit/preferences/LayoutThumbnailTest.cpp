#include "preferences/LayoutThumbnail.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedSystemColors.h"

namespace quorvel {
namespace {

using layoutThumbnail::PictureRect;

const RoundedRectCommand& shape(const DrawList& list, std::size_t index)
{
    return std::get<RoundedRectCommand>(list.commands.at(index));
}

TEST(LayoutThumbnail, FramesLieInTheInnerAreaWithTheOriginAtTheBottom)
{
    const auto rects = layoutThumbnail::frameRects({{0.0, 0.0, 0.5, 1.0}, {0.5, 0.5, 0.5, 0.5}});
    ASSERT_EQ(rects.size(), 2U);
    EXPECT_EQ(rects[0], (PictureRect{6.0, 6.0, 18.0, 36.0}));
    EXPECT_EQ(rects[1], (PictureRect{24.0, 24.0, 18.0, 18.0}));
}

TEST(LayoutThumbnail, ALayoutWithoutFramesShowsFourCells)
{
    const auto rects = layoutThumbnail::frameRects({});
    ASSERT_EQ(rects.size(), 4U);
    constexpr double tolerance = 1e-9;
    EXPECT_TRUE(nearlyEqual(rects[0], {8.88, 8.88, 13.68, 13.68}, tolerance));
    EXPECT_TRUE(nearlyEqual(rects[1], {25.44, 8.88, 13.68, 13.68}, tolerance));
    EXPECT_TRUE(nearlyEqual(rects[2], {8.88, 25.44, 13.68, 13.68}, tolerance));
    EXPECT_TRUE(nearlyEqual(rects[3], {25.44, 25.44, 13.68, 13.68}, tolerance));
}

TEST(LayoutThumbnail, FramesAreDrawnInYellowOnBrown)
{
    const SimulatedSystemColors colors;
    const auto list = layoutThumbnail::drawing({{0.5, 0.5, 0.5, 0.5}}, colors);
    ASSERT_EQ(list.commands.size(), 2U);

    EXPECT_EQ(shape(list, 0).rect, (ViewRect{0.0, 0.0, 48.0, 48.0}));
    EXPECT_EQ(shape(list, 0).cornerRadius, 8.0);
    EXPECT_EQ(shape(list, 0).fill, (Color{0.22, 0.15, 0.06, 1.0}));
    EXPECT_EQ(shape(list, 0).stroke, std::nullopt);

    EXPECT_EQ(shape(list, 1).rect, (ViewRect{24.0, 6.0, 18.0, 18.0}));
    EXPECT_EQ(shape(list, 1).cornerRadius, 3.0);
    EXPECT_EQ(shape(list, 1).fill, colors.yellow().withAlpha(0.15));
    EXPECT_EQ(shape(list, 1).stroke, (Stroke{colors.yellow().withAlpha(0.9), 1.0}));
}

} // namespace
} // namespace quorvel
