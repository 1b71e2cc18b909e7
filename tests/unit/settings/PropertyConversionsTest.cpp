#include "settings/PropertyConversions.h"

#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using Integers = std::numeric_limits<std::int64_t>;

PropertyValue text(std::string value)
{
    return {std::move(value)};
}

PropertyValue integer(std::int64_t value)
{
    return {value};
}

const PropertyValue truth{true};
const PropertyValue falsehood{false};
const PropertyValue array{PropertyArray{integer(1)}};
const PropertyValue dictionary{PropertyDictionary{{"a", integer(1)}}};
const PropertyValue bytes{PropertyData{std::byte{1}}};

TEST(PropertyConversions, IntegersTakeNumbersWithoutTheirFraction)
{
    EXPECT_EQ(integerFrom(integer(31)), 31);
    EXPECT_EQ(integerFrom({2.9}), 2);
    EXPECT_EQ(integerFrom({-2.9}), -2);
    EXPECT_EQ(integerFrom(truth), 1);
    EXPECT_EQ(integerFrom(falsehood), 0);
}

TEST(PropertyConversions, IntegersOutOfRangeBecomeTheNearestWithin)
{
    EXPECT_EQ(integerFrom({1e300}), Integers::max());
    EXPECT_EQ(integerFrom({9223372036854775808.0}), Integers::max());
    EXPECT_EQ(integerFrom({-1e300}), Integers::min());
    EXPECT_EQ(integerFrom({-9223372036854775808.0}), Integers::min());
    EXPECT_EQ(integerFrom({std::numeric_limits<double>::infinity()}), Integers::max());
    EXPECT_EQ(integerFrom({std::numeric_limits<double>::quiet_NaN()}), 0);
    EXPECT_EQ(integerFrom(text("99999999999999999999")), Integers::max());
    EXPECT_EQ(integerFrom(text("-99999999999999999999")), Integers::min());
    EXPECT_EQ(integerFrom(text("-9223372036854775808")), Integers::min());
}

TEST(PropertyConversions, IntegersTakeTheWholeNumberThatATextBeginsWith)
{
    EXPECT_EQ(integerFrom(text("256")), 256);
    EXPECT_EQ(integerFrom(text(" \t+12px")), 12);
    EXPECT_EQ(integerFrom(text("-7.9")), -7);
    EXPECT_EQ(integerFrom(text("0x1F")), 0);
    EXPECT_EQ(integerFrom(text("--7")), 0);
    EXPECT_EQ(integerFrom(text("+-7")), 0);
    EXPECT_EQ(integerFrom(text("O")), 0);
    EXPECT_EQ(integerFrom(text("  ")), 0);
    EXPECT_EQ(integerFrom(text("")), 0);
}

TEST(PropertyConversions, CollectionsAndDataAreNoNumbers)
{
    for (const auto& value : {array, dictionary, bytes}) {
        EXPECT_EQ(integerFrom(value), 0);
        EXPECT_EQ(realFrom(value), 0.0);
        EXPECT_FALSE(booleanFrom(value));
        EXPECT_FALSE(isNumber(value));
    }
}

TEST(PropertyConversions, RealsTakeNumbersAndTheDecimalNumberThatATextBeginsWith)
{
    EXPECT_EQ(realFrom(integer(3)), 3.0);
    EXPECT_EQ(realFrom({2.5}), 2.5);
    EXPECT_EQ(realFrom(truth), 1.0);
    EXPECT_EQ(realFrom(text("2.5px")), 2.5);
    EXPECT_EQ(realFrom(text(" -.5")), -0.5);
    EXPECT_EQ(realFrom(text("+5.")), 5.0);
    EXPECT_EQ(realFrom(text("1e2")), 100.0);
    EXPECT_EQ(realFrom(text("1e")), 1.0);
    EXPECT_EQ(realFrom(text("1.5E-1x")), 0.15);
    EXPECT_EQ(realFrom(text("2,5")), 2.0);
    EXPECT_EQ(realFrom(text("30pt")), 30.0);
    EXPECT_EQ(realFrom(text(".")), 0.0);
    EXPECT_EQ(realFrom(text("-")), 0.0);
    EXPECT_EQ(realFrom(text(".e5")), 0.0);
    EXPECT_EQ(realFrom(text("large")), 0.0);
    EXPECT_EQ(realFrom(text("inf")), 0.0);
    EXPECT_EQ(realFrom(text("")), 0.0);
}

TEST(PropertyConversions, BooleansTakeNumbersOtherThanZeroAndTextsThatSayYes)
{
    EXPECT_TRUE(booleanFrom(truth));
    EXPECT_FALSE(booleanFrom(falsehood));
    EXPECT_TRUE(booleanFrom(integer(-1)));
    EXPECT_FALSE(booleanFrom(integer(0)));
    EXPECT_TRUE(booleanFrom({0.5}));
    for (const auto* yes : {"YES", "yes", "true", "T", "1", " +007", "9"}) {
        EXPECT_TRUE(booleanFrom(text(yes))) << yes;
    }
    for (const auto* no : {"NO", "false", "0", "000", "", " ", "on", "-", "+Z"}) {
        EXPECT_FALSE(booleanFrom(text(no))) << no;
    }
}

TEST(PropertyConversions, StringsTakeTextsAndTheTextOfNumbers)
{
    EXPECT_EQ(stringFrom(text("#FFFF00")), "#FFFF00");
    EXPECT_EQ(stringFrom(integer(-31)), "-31");
    EXPECT_EQ(stringFrom({2.5}), "2.5");
    EXPECT_EQ(stringFrom({2.0}), "2");
    EXPECT_EQ(stringFrom(truth), "1");
    EXPECT_EQ(stringFrom(falsehood), "0");
    EXPECT_EQ(stringFrom(array), std::nullopt);
    EXPECT_EQ(stringFrom(dictionary), std::nullopt);
    EXPECT_EQ(stringFrom(bytes), std::nullopt);
}

TEST(PropertyConversions, ATextThatLooksLikeANumberIsNone)
{
    EXPECT_TRUE(isNumber(integer(256)));
    EXPECT_TRUE(isNumber({256.5}));
    EXPECT_TRUE(isNumber(truth));
    EXPECT_FALSE(isNumber(text("256")));
}

TEST(PropertyConversions, AnArrayCountsOnlyIfEveryElementIsAString)
{
    EXPECT_EQ(stringArrayFrom({PropertyArray{text("a"), text("b")}}), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(stringArrayFrom({PropertyArray{}}), std::vector<std::string>{});
    EXPECT_EQ(stringArrayFrom({PropertyArray{text("a"), integer(5)}}), std::nullopt);
    EXPECT_EQ(stringArrayFrom({PropertyArray{{PropertyArray{text("a")}}}}), std::nullopt);
    EXPECT_EQ(stringArrayFrom(text("a")), std::nullopt);
    EXPECT_EQ(stringArrayFrom(dictionary), std::nullopt);
}

TEST(PropertyConversions, ADictionaryCountsOnlyIfEveryValueIsAString)
{
    using Strings = std::map<std::string, std::string>;
    EXPECT_EQ(stringDictionaryFrom({PropertyDictionary{{"a", text("1")}, {"b", text("2")}}}),
              (Strings{{"a", "1"}, {"b", "2"}}));
    EXPECT_EQ(stringDictionaryFrom({PropertyDictionary{}}), Strings{});
    EXPECT_EQ(stringDictionaryFrom({PropertyDictionary{{"a", text("1")}, {"b", integer(2)}}}), std::nullopt);
    EXPECT_EQ(stringDictionaryFrom(array), std::nullopt);
    EXPECT_EQ(stringDictionaryFrom(text("a")), std::nullopt);
}

} // namespace
} // namespace quorvel
