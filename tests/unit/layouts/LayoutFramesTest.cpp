#include "layouts/LayoutFrames.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PropertyValue real(double value)
{
    return {value};
}

PropertyValue integer(std::int64_t value)
{
    return {value};
}

PropertyValue record(PropertyDictionary members)
{
    return {std::move(members)};
}

std::vector<UnitRect> normalized(const std::vector<WindowModel>& windows)
{
    std::vector<UnitRect> frames;
    std::ranges::transform(windows, std::back_inserter(frames),
                           [](const WindowModel& window) { return frameFromRecord(windowRecord(window)).value(); });
    return normalizedFrames(std::move(frames));
}

TEST(LayoutFrames, CornersBecomeAnOriginAndASize)
{
    EXPECT_EQ(frameFromRecord(windowRecord({0.5, 0.25, 1.0, 0.75})), (UnitRect{0.5, 0.25, 0.5, 0.5}));
}

TEST(LayoutFrames, CornersInTheWrongOrderGiveNoWidthOrHeight)
{
    EXPECT_EQ(frameFromRecord(windowRecord({0.8, 0.0, 0.2, 1.0})), (UnitRect{0.8, 0.0, 0.0, 1.0}));
    EXPECT_EQ(frameFromRecord(windowRecord({0.0, 1.0, 1.0, 0.5})), (UnitRect{0.0, 1.0, 1.0, 0.0}));
}

TEST(LayoutFrames, NegativeSizesGiveNoWidthOrHeight)
{
    const PropertyDictionary negative{
        {"x", real(0.8)}, {"y", real(0.5)}, {"width", real(-0.6)}, {"height", integer(-1)}};
    EXPECT_EQ(frameFromRecord(negative), (UnitRect{0.8, 0.5, 0.0, 0.0}));
}

TEST(LayoutFrames, CornersMayBeIntegers)
{
    const PropertyDictionary corners{{"bottom_left_x", integer(0)},
                                     {"bottom_left_y", integer(1)},
                                     {"top_right_x", integer(2)},
                                     {"top_right_y", real(1.5)}};
    EXPECT_EQ(frameFromRecord(corners), (UnitRect{0.0, 1.0, 2.0, 0.5}));
}

TEST(LayoutFrames, ANestedRecordIsReadUnderItsUsualNames)
{
    for (const auto* name : {"frame", "rect", "bounds"}) {
        const PropertyDictionary nested{
            {"minX", integer(0)}, {"top", real(0.5)}, {"w", integer(1)}, {"height", real(0.25)}};
        EXPECT_EQ(frameFromRecord({{name, record(nested)}}), (UnitRect{0.0, 0.5, 1.0, 0.25})) << name;
    }
}

TEST(LayoutFrames, ARecordThatLacksACoordinateIsSkipped)
{
    const PropertyDictionary withoutHeight{{"minX", integer(0)}, {"top", integer(0)}, {"w", integer(1)}};
    EXPECT_EQ(frameFromRecord({{"rect", record(withoutHeight)}}), std::nullopt);
    EXPECT_EQ(frameFromRecord(withoutHeight), std::nullopt);
    EXPECT_EQ(frameFromRecord({}), std::nullopt);
}

TEST(LayoutFrames, TheRecordItselfIsReadWhereTheNestedOneFails)
{
    PropertyDictionary members{{"left", real(0.1)}, {"y", real(0.2)}, {"width", real(0.3)}, {"h", real(0.4)}};
    const UnitRect expected{0.1, 0.2, 0.3, 0.4};
    EXPECT_EQ(frameFromRecord(members), expected);
    members["frame"] = record({{"x", real(9.0)}});
    EXPECT_EQ(frameFromRecord(members), expected);
    members["frame"] = {std::string("0,0,1,1")};
    EXPECT_EQ(frameFromRecord(members), expected);
}

TEST(LayoutFrames, TheFirstNameFoundCountsEvenIfItsValueDoesNot)
{
    const PropertyDictionary members{
        {"x", {std::string("0.1")}}, {"left", real(0.1)}, {"y", real(0)}, {"w", real(1)}, {"h", real(1)}};
    EXPECT_EQ(frameFromRecord(members), std::nullopt);
    const PropertyDictionary nested{
        {"x", real(0.5)}, {"minX", real(9)}, {"y", real(0)}, {"w", real(1)}, {"h", real(1)}};
    EXPECT_EQ(frameFromRecord({{"bounds", record({})}, {"frame", record(nested)}}), (UnitRect{0.5, 0.0, 1.0, 1.0}));
}

TEST(LayoutFrames, NamesAreTriedInAFixedOrder)
{
    PropertyDictionary members{{"x", real(1)},      {"minX", real(2)}, {"left", real(3)},  {"y", real(4)},
                               {"minY", real(5)},   {"top", real(6)},  {"width", real(7)}, {"w", real(8)},
                               {"height", real(9)}, {"h", real(10)}};
    EXPECT_EQ(frameFromRecord(members), (UnitRect{1, 4, 7, 9}));
    for (const auto* name : {"x", "y", "width", "height"}) {
        members.erase(name);
    }
    EXPECT_EQ(frameFromRecord(members), (UnitRect{2, 5, 8, 10}));
    members.erase("minX");
    members.erase("minY");
    EXPECT_EQ(frameFromRecord(members), (UnitRect{3, 6, 8, 10}));
}

TEST(LayoutFrames, OfSeveralNestedRecordsTheFirstNameCounts)
{
    const auto square = [](double side) {
        return record({{"x", real(0)}, {"y", real(0)}, {"w", real(side)}, {"h", real(side)}});
    };
    PropertyDictionary members{{"bounds", square(3)}, {"rect", square(2)}, {"frame", square(1)}};
    EXPECT_EQ(frameFromRecord(members), (UnitRect{0, 0, 1, 1}));
    members.erase("frame");
    EXPECT_EQ(frameFromRecord(members), (UnitRect{0, 0, 2, 2}));
}

TEST(LayoutFrames, ABooleanIsNoNumber)
{
    EXPECT_EQ(frameFromRecord({{"x", {true}}, {"y", integer(0)}, {"w", integer(1)}, {"h", integer(1)}}), std::nullopt);
}

TEST(LayoutFrames, SomeCornersAloneDoNotHideAnOriginAndASize)
{
    const PropertyDictionary members{
        {"bottom_left_x", real(0.9)}, {"bottom_left_y", real(0.9)}, {"x", real(0.0)}, {"y", real(0.0)},
        {"width", real(0.5)},         {"height", real(1.0)}};
    EXPECT_EQ(frameFromRecord(members), (UnitRect{0.0, 0.0, 0.5, 1.0}));
}

TEST(LayoutFrames, FramesInsideTheUnitSquareStayAsTheyAre)
{
    EXPECT_THAT(normalized({{0.2, 0.2, 0.4, 0.4}, {0.8, 0.0, 0.2, 1.0}}),
                ElementsAre(UnitRect{0.2, 0.2, 0.2, 0.2}, UnitRect{0.8, 0.0, 0.0, 1.0}));
    EXPECT_THAT(normalized({}), IsEmpty());
}

TEST(LayoutFrames, FramesInPixelsShrinkIntoTheUnitSquare)
{
    EXPECT_THAT(normalized({{0, 0, 960, 1080}, {960, 0, 1920, 1080}}),
                ElementsAre(UnitRect{0.0, 0.0, 0.5, 1.0}, UnitRect{0.5, 0.0, 0.5, 1.0}));
    EXPECT_THAT(normalized({{100, 50, 500, 250}, {500, 50, 900, 450}}),
                ElementsAre(UnitRect{0.0, 0.0, 0.5, 0.5}, UnitRect{0.5, 0.0, 0.5, 1.0}));
}

TEST(LayoutFrames, EachAxisShrinksOnItsOwnAndIsNeverStretched)
{
    EXPECT_THAT(normalized({{0.0, 0.0, 0.5, 1.0}, {0.5, 0.0, 2.0, 1.0}}),
                ElementsAre(UnitRect{0.0, 0.0, 0.25, 1.0}, UnitRect{0.25, 0.0, 0.75, 1.0}));
    EXPECT_THAT(normalized({{10.0, 10.0, 10.5, 10.5}}), ElementsAre(UnitRect{0.0, 0.0, 0.5, 0.5}));
}

TEST(LayoutFrames, OneFrameOutsideMovesAllOfThem)
{
    EXPECT_THAT(normalized({{0.25, 0.0, 0.5, 0.5}, {-0.25, 0.0, 0.25, 0.5}}),
                ElementsAre(UnitRect{0.5, 0.0, 0.25, 0.5}, UnitRect{0.0, 0.0, 0.5, 0.5}));
}

} // namespace
} // namespace quorvel
