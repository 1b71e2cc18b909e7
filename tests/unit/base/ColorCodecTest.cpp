#include "base/ColorCodec.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(ColorCodec, ReadsSixOrEightDigitsWithTheAlphaLast)
{
    EXPECT_EQ(colorFromHex("#0A84FFCC"), Color::bytes(10, 132, 255, 204));
    EXPECT_EQ(colorFromHex("0A84FF"), Color::bytes(10, 132, 255, 255));
    EXPECT_EQ(colorFromHex("#abcdef"), colorFromHex("#ABCDEF"));
}

TEST(ColorCodec, ReadsTheDefaultsAsTheyStand)
{
    EXPECT_EQ(colorFromHex("#88FFFF00"), Color::bytes(136, 255, 255, 0));
    EXPECT_EQ(colorFromHex("#8800D4FF"), Color::bytes(136, 0, 212, 255));
    EXPECT_EQ(colorFromHex("#DD000000"), Color::bytes(221, 0, 0, 0));
    EXPECT_EQ(colorFromHex("#30D158CC"), Color::bytes(48, 209, 88, 204));
}

TEST(ColorCodec, AnyOtherLengthGivesNoColor)
{
    for (const auto* text : {"#0A84F", "#0A84FFC", "#0A84FFCC0", "#0A84FFCC00", "#FFF", "", "#", "  ", "-", "0x"}) {
        EXPECT_EQ(colorFromHex(text), std::nullopt) << text;
    }
}

TEST(ColorCodec, DropsWhatIsNeitherLetterNorNumberAtBothEnds)
{
    EXPECT_EQ(colorFromHex("  #abcdef  "), Color::bytes(171, 205, 239));
    EXPECT_EQ(colorFromHex("(#FF8000)"), Color::bytes(255, 128, 0));
    EXPECT_EQ(colorFromHex("##FF8000##"), Color::bytes(255, 128, 0));
    EXPECT_EQ(colorFromHex("„FF8000“\n"), Color::bytes(255, 128, 0));
    EXPECT_EQ(colorFromHex("\xFF#FF8000\xC3"), Color::bytes(255, 128, 0));
}

TEST(ColorCodec, KeepsLettersAndNumbersOfEveryScriptAtTheEnds)
{
    // Seven characters each: the outer one is part of the text, so the length is wrong.
    EXPECT_EQ(colorFromHex("éFF8000"), std::nullopt);
    EXPECT_EQ(colorFromHex("FF8000½"), std::nullopt);
    EXPECT_EQ(colorFromHex("FF8000ж"), std::nullopt);
}

TEST(ColorCodec, CountsCharactersAndNotBytes)
{
    EXPECT_EQ(colorFromHex("FF80é0"), Color::bytes(0, 255, 128));
    EXPECT_EQ(colorFromHex("FF80日0"), Color::bytes(0, 255, 128));
    EXPECT_EQ(colorFromHex("FF 800"), Color::bytes(0, 0, 255));
    EXPECT_EQ(colorFromHex("FF80é"), std::nullopt);
}

TEST(ColorCodec, ReadingStopsAtTheFirstBadDigit)
{
    EXPECT_EQ(colorFromHex("#GGGGGG"), Color::bytes(0, 0, 0, 255));
    EXPECT_EQ(colorFromHex("#GG0000FF"), Color::bytes(0, 0, 0, 0));
    EXPECT_EQ(colorFromHex("#12GGGG"), Color::bytes(0, 0, 0x12, 255));
    EXPECT_EQ(colorFromHex("#1234G678"), Color::bytes(0, 0, 0x12, 0x34));
}

TEST(ColorCodec, AHexadecimalPrefixCountsTowardsTheLength)
{
    EXPECT_EQ(colorFromHex("0x0A84"), Color::bytes(0, 10, 132, 255));
    EXPECT_EQ(colorFromHex("0XFF8000"), Color::bytes(0, 255, 128, 0));
    EXPECT_EQ(colorFromHex("0xGGGG"), Color::bytes(0, 0, 0, 255));
    EXPECT_EQ(colorFromHex("0xFF8000FF"), std::nullopt);
}

TEST(ColorCodec, WritesEightUpperCaseDigits)
{
    EXPECT_EQ(hexStringFromColor({1.0, 1.0, 1.0, 1.0}), "#FFFFFFFF");
    EXPECT_EQ(hexStringFromColor({0.5, 0.25, 0.75, 0.0}), "#8040BF00");
    EXPECT_EQ(hexStringFromColor({0.1, 1.0 / 3.0, 0.998, 1.0}), "#1A55FEFF");
    EXPECT_EQ(hexStringFromColor(Color::clear()), "#00000000");
}

TEST(ColorCodec, ClampsComponentsWhenWriting)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(hexStringFromColor({-0.5, 1.5, infinity, -infinity}), "#00FFFF00");
    EXPECT_EQ(hexStringFromColor({std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0, 1.0}), "#000000FF");
}

TEST(ColorCodec, SixDigitsAreWrittenBackWithAnOpaqueAlpha)
{
    EXPECT_EQ(hexStringFromColor(colorFromHex("FF8000").value()), "#FF8000FF");
    EXPECT_EQ(hexStringFromColor(colorFromHex("#zzzzzz").value()), "#000000FF");
}

TEST(ColorCodec, EveryStepSurvivesARoundTrip)
{
    for (int step = 0; step < 256; ++step) {
        const auto color = Color::bytes(step, 255 - step, step / 2, step);
        EXPECT_EQ(colorFromHex(hexStringFromColor(color)), color);
    }
}

} // namespace
} // namespace quorvel
