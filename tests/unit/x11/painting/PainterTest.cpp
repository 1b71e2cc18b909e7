#include <gtest/gtest.h>

#include "tests/unit/x11/painting/Painting.h"

namespace quorvel::x11 {
namespace {

TEST(Painter, FillsExactlyTheRectangle)
{
    const auto image = Painting().paint({12, 10}, {filled({2, 3, 5, 4}, Color::bytes(255, 128, 0))});
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 12; ++x) {
            const bool isInside = x >= 2 && x < 7 && y >= 3 && y < 7;
            EXPECT_EQ(image.at(x, y), isInside ? 0xFFFF8000U : 0U) << x << ", " << y;
        }
    }
}

TEST(Painter, PremultipliesTransparentColors)
{
    const auto image = Painting().paint({1, 1}, {filled({0, 0, 1, 1}, Color::bytes(255, 0, 0, 128))});
    EXPECT_EQ(image.at(0, 0), 0x80800000U);
}

TEST(Painter, DrawsLaterCommandsOverEarlierOnes)
{
    const auto image = Painting().paint(
        {4, 1}, {filled({0, 0, 4, 1}, Color::bytes(255, 0, 0)), filled({2, 0, 2, 1}, Color::bytes(0, 0, 255))});
    EXPECT_EQ(image.at(1, 0), 0xFFFF0000U);
    EXPECT_EQ(image.at(2, 0), 0xFF0000FFU);
}

TEST(Painter, CentresTheStrokeOnTheOutline)
{
    const auto image = Painting().paint({20, 20}, {stroked({4, 4, 12, 12}, Color::white(), 2.0)});
    EXPECT_EQ(alphaAt(image, 2, 10), 0U);
    EXPECT_EQ(alphaAt(image, 3, 10), 255U);
    EXPECT_EQ(alphaAt(image, 4, 10), 255U);
    EXPECT_EQ(alphaAt(image, 5, 10), 0U);
    EXPECT_EQ(alphaAt(image, 3, 3), 255U); // mitred
}

TEST(Painter, StrokesOverTheFill)
{
    auto command = filled({2, 2, 16, 16}, Color::bytes(0, 0, 255));
    command.stroke = Stroke{Color::bytes(255, 0, 0), 2.0};
    const auto image = Painting().paint({20, 20}, {command});
    EXPECT_EQ(image.at(2, 10), 0xFFFF0000U);
    EXPECT_EQ(image.at(3, 10), 0xFF0000FFU);
}

TEST(Painter, RoundsCornersByTheRadius)
{
    const auto image = Painting().paint({60, 60}, {filled({0, 0, 60, 60}, Color::white(), 20.0)});
    // The arc's middle lies 20 (1 - 1/√2) = 5.86 pixels from both sides.
    EXPECT_EQ(alphaAt(image, 4, 4), 0U);
    EXPECT_EQ(alphaAt(image, 7, 7), 255U);
    EXPECT_GT(alphaAt(image, 5, 6), 0U);
    EXPECT_LT(alphaAt(image, 5, 6), 255U);
    EXPECT_EQ(alphaAt(image, 21, 0), 255U);
    EXPECT_LT(alphaAt(image, 15, 0), 255U);
    EXPECT_NEAR(inkAmount(image), 3600.0 - (4.0 - 3.14159) * 400.0, 2.0);
}

TEST(Painter, AllFourCornersAreAlike)
{
    for (const auto style : {CornerStyle::circular, CornerStyle::continuous}) {
        auto command = filled({0, 0, 50, 50}, Color::white(), 15.0);
        command.cornerStyle = style;
        const auto image = Painting().paint({50, 50}, {command});
        // Cairo samples rows and columns differently, by up to four hundredths.
        for (int y = 0; y < 25; ++y) {
            for (int x = 0; x < 25; ++x) {
                EXPECT_NEAR(alphaAt(image, x, y), alphaAt(image, 49 - x, y), 10) << x << ", " << y;
                EXPECT_NEAR(alphaAt(image, x, y), alphaAt(image, x, 49 - y), 10) << x << ", " << y;
                EXPECT_NEAR(alphaAt(image, x, y), alphaAt(image, y, x), 10) << x << ", " << y;
            }
        }
    }
}

TEST(Painter, AContinuousCornerStartsEarlierAndHasTheSameMiddle)
{
    auto command = filled({0, 0, 100, 100}, Color::white(), 20.0);
    const auto circular = Painting().paint({100, 100}, {command});
    command.cornerStyle = CornerStyle::continuous;
    const auto continuous = Painting().paint({100, 100}, {command});
    EXPECT_EQ(alphaAt(circular, 22, 0), 255U);
    EXPECT_LT(alphaAt(continuous, 22, 0), 255U);
    EXPECT_EQ(alphaAt(continuous, 31, 0), 255U);
    EXPECT_EQ(alphaAt(continuous, 4, 4), 0U);
    EXPECT_EQ(alphaAt(continuous, 7, 7), 255U);
    EXPECT_NE(circular, continuous);
}

TEST(Painter, CutsARadiusThatDoesNotFit)
{
    const auto image = Painting().paint({20, 10}, {filled({0, 0, 20, 10}, Color::white(), 1000.0)});
    EXPECT_EQ(image, Painting().paint({20, 10}, {filled({0, 0, 20, 10}, Color::white(), 5.0)}));
    EXPECT_EQ(alphaAt(image, 0, 0), 0U);
    EXPECT_EQ(alphaAt(image, 10, 0), 255U);
}

TEST(Painter, ANegativeRadiusIsNone)
{
    EXPECT_EQ(alphaAt(Painting().paint({4, 4}, {filled({0, 0, 4, 4}, Color::white(), -3.0)}), 0, 0), 255U);
}

TEST(Painter, SpreadsAGlowEvenlyAroundAStroke)
{
    auto command = stroked({50, 50, 100, 100}, Color::bytes(10, 132, 255), 4.0);
    command.shadow = Shadow{Color::bytes(10, 132, 255, 153), 12.0};
    const auto image = Painting().paint({200, 200}, {command});
    for (int distance = 3; distance < 20; ++distance) {
        const auto outside = alphaAt(image, 49 - distance, 100);
        EXPECT_LE(outside, alphaAt(image, 50 - distance, 100)) << distance;
        EXPECT_NEAR(outside, alphaAt(image, 50 + distance, 100), 2) << distance;
        EXPECT_NEAR(outside, alphaAt(image, 150 + distance, 100), 2) << distance;
        EXPECT_NEAR(outside, alphaAt(image, 100, 49 - distance), 2) << distance;
    }
    EXPECT_GT(alphaAt(image, 44, 100), 20U);
    EXPECT_EQ(alphaAt(image, 100, 100), 0U);
    EXPECT_EQ(alphaAt(image, 0, 0), 0U);
}

TEST(Painter, DrawsTheShapeOverItsShadow)
{
    auto command = filled({20, 20, 60, 60}, Color::bytes(255, 255, 255));
    command.shadow = Shadow{Color::black(), 10.0};
    const auto image = Painting().paint({100, 100}, {command});
    EXPECT_EQ(image.at(50, 50), 0xFFFFFFFFU);
    EXPECT_EQ(image.at(20, 50), 0xFFFFFFFFU);
    EXPECT_NEAR(alphaAt(image, 19, 50), 118, 12);
    EXPECT_EQ(image.at(19, 50) & 0xFFFFFFU, 0U);
}

TEST(Painter, AShadowIsAsFaintAsItsShape)
{
    auto command = filled({20, 20, 60, 60}, Color::white().withAlpha(0.5));
    command.shadow = Shadow{Color::black(), 10.0};
    const auto image = Painting().paint({100, 100}, {command});
    EXPECT_NEAR(alphaAt(image, 19, 50), 59, 6);
}

TEST(Painter, AShadowFromOutsideReachesIn)
{
    auto command = filled({-50, 0, 49, 100}, Color::white());
    command.shadow = Shadow{Color::black(), 12.0};
    const auto image = Painting().paint({30, 100}, {command});
    EXPECT_GT(alphaAt(image, 0, 50), 60U);
    EXPECT_EQ(alphaAt(image, 29, 50), 0U);
}

TEST(Painter, AShapeFarOutsideDrawsNothing)
{
    auto command = filled({-5000, -5000, 10, 10}, Color::white());
    command.shadow = Shadow{Color::black(), 12.0};
    EXPECT_FALSE(inkBounds(Painting().paint({30, 30}, {command})));
}

TEST(Painter, DrawsOverWhatTheImageHolds)
{
    const Painting painting;
    PixelImage image({2, 1});
    painting.painter.paint(image, {{filled({0, 0, 1, 1}, Color::white())}});
    painting.painter.paint(image, {{filled({1, 0, 1, 1}, Color::black())}});
    EXPECT_EQ(image.at(0, 0), 0xFFFFFFFFU);
    EXPECT_EQ(image.at(1, 0), 0xFF000000U);
}

TEST(Painter, LeavesAnImageWithoutPixelsAlone)
{
    EXPECT_TRUE(Painting().paint({0, 0}, {filled({0, 0, 1, 1}, Color::white())}).pixels.empty());
}

} // namespace
} // namespace quorvel::x11
