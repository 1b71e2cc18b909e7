#include "platform/x11/painting/PaintPlan.h"

#include <random>

#include <gtest/gtest.h>

#include "platform/x11/painting/CollapsedList.h"
#include "platform/x11/painting/OpaqueList.h"
#include "platform/x11/painting/PictureCache.h"
#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

struct Planner {
    Painting painting;
    PictureCache cache{painting.painter};

    PaintPlan plan(const DrawList& list, PixelSize size, Blending blending = Blending::available)
    {
        const auto collapsedList = collapsed(list, size);
        return paintPlan(cache.picture(collapsedList, blending), collapsedList.columns, collapsedList.rows);
    }
};

// What a window shows that is filled as planned; a pixel that is covered twice is a failure.
PixelImage carriedOut(const PaintPlan& plan, PixelSize size)
{
    PixelImage image(size);
    const auto put = [&](int x, int y, Pixel pixel) {
        EXPECT_EQ(image.at(x, y), 0U) << "twice at " << x << ", " << y;
        image.at(x, y) = pixel;
    };
    for (const auto& fill : plan.fills) {
        for (int y = fill.rect.y; y < fill.rect.maxY(); ++y) {
            for (int x = fill.rect.x; x < fill.rect.maxX(); ++x) {
                put(x, y, fill.pixel);
            }
        }
    }
    for (const auto& piece : plan.pieces) {
        for (int y = 0; y < piece.rect.height; ++y) {
            for (int x = 0; x < piece.rect.width; ++x) {
                put(piece.rect.x + x, piece.rect.y + y, plan.picture->at(piece.pictureX + x, piece.pictureY + y));
            }
        }
    }
    return image;
}

DrawList layoutFrame(PixelSize size, const std::string& label)
{
    const double width = size.width;
    const double height = size.height;
    auto background = filled({0, 0, width, height}, Color::bytes(255, 255, 0, 90), 9.0);
    background.cornerStyle = CornerStyle::continuous;
    auto border = stroked({1, 1, width - 2, height - 2}, Color::bytes(255, 255, 0), 2.0, 9.0);
    border.cornerStyle = CornerStyle::continuous;
    const ViewRect box{std::floor(width / 2) - 20, std::floor(height / 2) - 18, 40, 36};
    auto labelBox = filled(box, Color::bytes(0, 0, 0, 128), 6.0);
    labelBox.stroke = Stroke{Color::bytes(255, 255, 0), 2.0};
    labelBox.backing = Backing::solid;
    return {{background, border, labelBox, text(label, box)}};
}

TEST(PaintPlan, ShowsALayoutFrameAsThePainterDrawsIt)
{
    Planner planner;
    constexpr PixelSize size{400, 300};
    const auto list = layoutFrame(size, "A");
    EXPECT_EQ(carriedOut(planner.plan(list, size), size), planner.painting.paint(size, list.commands));
}

TEST(PaintPlan, ShowsAGlowAsThePainterDrawsIt)
{
    Planner planner;
    constexpr PixelSize size{300, 200};
    auto frame = stroked({1.5, 1.5, 297, 197}, Color::bytes(10, 132, 255, 230), 3.0, 10.0);
    frame.shadow = Shadow{Color::bytes(10, 132, 255, 153), 12.0};
    const DrawList list{{frame}};
    EXPECT_EQ(carriedOut(planner.plan(list, size), size), planner.painting.paint(size, list.commands));
}

TEST(PaintPlan, OfALayoutFrameIsSmall)
{
    Planner planner;
    constexpr PixelSize size{1900, 1000};
    const auto plan = planner.plan(layoutFrame(size, "A"), size);
    EXPECT_LE(plan.picture->size.width, 120);
    EXPECT_LE(plan.picture->size.height, 120);
    EXPECT_LE(plan.pieces.size(), 5U);
    EXPECT_LE(plan.fills.size(), 24U);
}

TEST(PaintPlan, FramesOfAllSizesWithOneLabelShareThePicture)
{
    Planner planner;
    const auto small = planner.plan(layoutFrame({400, 300}, "A"), {400, 300});
    EXPECT_EQ(planner.plan(layoutFrame({600, 500}, "A"), {600, 500}).picture, small.picture);
    EXPECT_NE(planner.plan(layoutFrame({600, 500}, "B"), {600, 500}).picture, small.picture);
}

TEST(PaintPlan, OfNothingIsEmpty)
{
    Planner planner;
    const auto plan = planner.plan({}, {100, 100});
    EXPECT_TRUE(plan.fills.empty());
    EXPECT_TRUE(plan.pieces.empty());
    EXPECT_TRUE(opaqueRegion(plan).empty());
}

TEST(PaintPlan, FillsOfOneColorFollowOneAnother)
{
    Planner planner;
    const auto plan = planner.plan(layoutFrame({600, 500}, "A"), {600, 500});
    for (std::size_t index = 1; index < plan.fills.size(); ++index) {
        EXPECT_LE(plan.fills[index - 1].pixel, plan.fills[index].pixel);
    }
}

TEST(PaintPlan, TheOpaqueRegionHoldsTheRingAndTheLabelBoxOnly)
{
    Planner planner;
    constexpr PixelSize size{400, 300};
    const auto plan = planner.plan(withoutBlending(layoutFrame(size, "A")), size, Blending::unavailable);
    PixelImage region(size);
    for (const auto& rect : opaqueRegion(plan)) {
        for (int y = rect.y; y < rect.maxY(); ++y) {
            for (int x = rect.x; x < rect.maxX(); ++x) {
                EXPECT_EQ(region.at(x, y), 0U) << "twice at " << x << ", " << y;
                region.at(x, y) = 1;
            }
        }
    }
    EXPECT_EQ(region.at(200, 1), 1U);
    EXPECT_EQ(region.at(0, 150), 1U);
    EXPECT_EQ(region.at(399, 150), 1U);
    EXPECT_EQ(region.at(200, 299), 1U);
    EXPECT_EQ(region.at(0, 0), 0U);
    EXPECT_EQ(region.at(200, 2), 0U);
    EXPECT_EQ(region.at(100, 100), 0U);
    for (int y = 140; y < 160; ++y) {
        for (int x = 185; x < 215; ++x) {
            EXPECT_EQ(region.at(x, y), 1U) << x << ", " << y;
        }
    }
}

TEST(PaintPlan, WithoutBlendingEveryPixelIsOpaqueOrAbsent)
{
    Planner planner;
    constexpr PixelSize size{200, 150};
    const auto list = withoutBlending(layoutFrame(size, "Q"));
    const auto image = carriedOut(planner.plan(list, size, Blending::unavailable), size);
    for (const Pixel pixel : image.pixels) {
        EXPECT_TRUE(alphaOf(pixel) == 0 || alphaOf(pixel) == 255);
    }
    EXPECT_EQ(image.at(100, 0), 0xFFFFFF00U); // the border's pure colour
}

// Whatever is drawn, a plan shows the same pixels.
TEST(PaintPlan, ShowsRandomListsAsThePainterDrawsThem)
{
    Planner planner;
    std::mt19937 random(20); // the same lists in every run
    const auto between = [&](int from, int to) {
        return static_cast<double>(std::uniform_int_distribution<int>(from, to)(random));
    };
    for (int round = 0; round < 150; ++round) {
        const PixelSize size{static_cast<int>(between(1, 260)), static_cast<int>(between(1, 260))};
        DrawList list;
        for (double count = between(1, 5); count > 0; --count) {
            const ViewRect rect{between(-40, 200), between(-40, 200), between(0, 260), between(0, 260)};
            RoundedRectCommand command;
            command.rect = rect;
            command.cornerRadius = between(-2, 40);
            command.cornerStyle = between(0, 1) > 0 ? CornerStyle::continuous : CornerStyle::circular;
            if (between(0, 1) > 0) {
                command.fill = Color::bytes(200, 100, 50, static_cast<int>(between(0, 255)));
            }
            if (between(0, 1) > 0) {
                command.stroke = Stroke{Color::bytes(50, 100, 250, 200), between(0, 9)};
            }
            if (between(0, 2) == 0) {
                command.shadow = Shadow{Color::black(), between(0, 20)};
            }
            list.commands.emplace_back(command);
            if (between(0, 2) == 0) {
                auto label = text("Quick \u00C5g", rect);
                label.shadow = Shadow{Color::black(), between(0, 6)};
                list.commands.emplace_back(label);
            }
        }
        const auto expected = planner.painting.paint(size, list.commands);
        ASSERT_EQ(carriedOut(planner.plan(list, size), size), expected) << "round " << round;
    }
}

} // namespace
} // namespace quorvel::x11
