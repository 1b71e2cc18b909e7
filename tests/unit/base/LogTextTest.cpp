#include "base/LogText.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(LogText, DoublesAreShortestWithAtLeastOneDecimal)
{
    EXPECT_EQ(logText(0.0), "0.0");
    EXPECT_EQ(logText(-3.0), "-3.0");
    EXPECT_EQ(logText(0.1), "0.1");
    EXPECT_EQ(logText(1.0 / 3.0), "0.3333333333333333");
    EXPECT_EQ(logText(1e300), "1e+300");
}

TEST(LogText, PointsSizesAndRectanglesStandInParentheses)
{
    EXPECT_EQ(logText(AxPoint{1.0, -2.5}), "(1.0, -2.5)");
    EXPECT_EQ(logText(Size{800.0, 600.0}), "(800.0, 600.0)");
    EXPECT_EQ(logText(AxRect{0.0, 25.0, 1440.0, 875.0}), "(0.0, 25.0, 1440.0, 875.0)");
}

TEST(LogText, ANullRectangleShowsItsInfiniteOrigin)
{
    EXPECT_EQ(logText(ScreenRect::null()), "(inf, inf, 0.0, 0.0)");
}

TEST(LogText, APlainLineHoldsNoControlCharacters)
{
    EXPECT_EQ(plainLine("A\nB\tC\x7F"), "A B C ");
    EXPECT_EQ(plainLine("\xC2\x9B"
                        "31m \xC2\x9F \xC2\xA0"),
              " 31m   \xC2\xA0");
    EXPECT_EQ(plainLine("código → 😀 \xC2"), "código → 😀 \xC2");
    EXPECT_EQ(plainLine(""), "");
}

} // namespace
} // namespace quorvel
