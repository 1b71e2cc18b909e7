#include "platform/x11/painting/X11TextMetrics.h"

#include <cmath>

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

class X11TextMetricsTest : public testing::Test {
protected:
    TextLayouts layouts{"DejaVu Sans"};
    X11TextMetrics metrics{layouts};
};

TEST_F(X11TextMetricsTest, AnswersWholePoints)
{
    for (const double size : {9.0, 11.0, 12.8, 28.0, 64.0}) {
        const auto measured = metrics.measure("Jump to layout", {.size = size});
        EXPECT_EQ(measured.width, std::ceil(measured.width));
        EXPECT_EQ(measured.height, std::ceil(measured.height));
        EXPECT_GE(measured.height, size);
        EXPECT_LE(measured.height, size * 1.5);
    }
}

TEST_F(X11TextMetricsTest, LongerTextIsWiderAndAsHigh)
{
    const Font font{.size = 12.0};
    EXPECT_GT(metrics.measure("WW", font).width, metrics.measure("W", font).width * 1.9);
    EXPECT_EQ(metrics.measure("WW", font).height, metrics.measure("i", font).height);
}

TEST_F(X11TextMetricsTest, NoTextHasTheHeightOfALine)
{
    const Font font{.size = 12.0};
    EXPECT_EQ(metrics.measure("", font).width, 0.0);
    EXPECT_EQ(metrics.measure("", font).height, metrics.measure("x", font).height);
}

TEST_F(X11TextMetricsTest, BoldTextIsWider)
{
    EXPECT_GT(metrics.measure("Window", {.size = 20.0, .weight = FontWeight::bold}).width,
              metrics.measure("Window", {.size = 20.0}).width);
}

TEST_F(X11TextMetricsTest, ScalesWithTheFont)
{
    EXPECT_NEAR(metrics.measure("Window", {.size = 40.0}).width, 2.0 * metrics.measure("Window", {.size = 20.0}).width,
                6.0);
}

TEST_F(X11TextMetricsTest, MeasuresInvalidUtf8LikeReplacementCharacters)
{
    const Font font{.size = 12.0};
    EXPECT_EQ(metrics.measure("a\xFF", font), metrics.measure("a\uFFFD", font));
}

TEST_F(X11TextMetricsTest, ManySizesDoNotConfuseIt)
{
    const auto before = metrics.measure("Window", {.size = 13.0});
    for (int size = 1; size < 200; ++size) {
        EXPECT_GE(metrics.measure("Window", {.size = static_cast<double>(size)}).height, size);
    }
    EXPECT_EQ(metrics.measure("Window", {.size = 13.0}), before);
}

} // namespace
} // namespace quorvel::x11
