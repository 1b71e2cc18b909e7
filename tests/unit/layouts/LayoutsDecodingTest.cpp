#include "layouts/LayoutsDecoding.h"

#include <string>
#include <string_view>
#include <unordered_set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string catalogueWith(std::string_view layout)
{
    return R"({"layouts":[{"id":"a","name":"A","windows":[]},)" + std::string(layout) + "]}";
}

std::string layoutWithWindow(std::string_view window)
{
    return catalogueWith(R"({"id":"b","name":"B","windows":[)" + std::string(window) + "]}");
}

std::string errorOf(std::string_view json)
{
    const auto result = decodeLayoutsModel(json);
    return result ? "no error" : result.error();
}

TEST(LayoutsDecoding, IntegersCountAsNumbersAndUnknownKeysAreIgnored)
{
    const auto result = decodeLayoutsModel(
        R"({"layouts":[{"id":"a","name":"A","hint":null,"windows":[
            {"bottom_left_x":0,"bottom_left_y":0,"top_right_x":1,"top_right_y":1,"colour":"red"}]}],"version":3})");
    const LayoutsModel expected{{{"a", "A", {{0.0, 0.0, 1.0, 1.0}}}}};
    ASSERT_TRUE(result.has_value()) << result.error();
    EXPECT_EQ(*result, expected);
}

TEST(LayoutsDecoding, LayoutsAndWindowsKeepTheOrderOfTheFile)
{
    const auto result = decodeLayoutsModel(
        R"({"layouts":[{"id":"z","name":"Z","windows":[
            {"bottom_left_x":0.5,"bottom_left_y":0,"top_right_x":1,"top_right_y":1e0},
            {"bottom_left_x":0,"bottom_left_y":-0.25,"top_right_x":0.5,"top_right_y":1}]},
            {"id":"a","name":"A","windows":[]}]})");
    ASSERT_TRUE(result.has_value()) << result.error();
    ASSERT_EQ(result->layouts.size(), 2U);
    EXPECT_EQ(result->layouts[0].id, "z");
    EXPECT_EQ(result->layouts[0].windows[1], (WindowModel{0.0, -0.25, 0.5, 1.0}));
    EXPECT_EQ(result->layouts[1].id, "a");
}

TEST(LayoutsDecoding, ACatalogueWithoutLayoutsIsValid)
{
    const auto result = decodeLayoutsModel(R"({"layouts":[]})");
    ASSERT_TRUE(result.has_value()) << result.error();
    EXPECT_TRUE(result->layouts.empty());
}

TEST(LayoutsDecoding, EveryKeyIsRequired)
{
    EXPECT_EQ(errorOf(R"({})"), "layouts is missing");
    EXPECT_EQ(errorOf(catalogueWith(R"({"name":"B","windows":[]})")), "layouts[1].id is missing");
    EXPECT_EQ(errorOf(catalogueWith(R"({"id":"b","windows":[]})")), "layouts[1].name is missing");
    EXPECT_EQ(errorOf(catalogueWith(R"({"id":"b","name":"B"})")), "layouts[1].windows is missing");
    EXPECT_EQ(errorOf(layoutWithWindow(R"({"bottom_left_y":0,"top_right_x":1,"top_right_y":1})")),
              "layouts[1].windows[0].bottom_left_x is missing");
    EXPECT_EQ(errorOf(layoutWithWindow(R"({"bottom_left_x":0,"top_right_x":1,"top_right_y":1})")),
              "layouts[1].windows[0].bottom_left_y is missing");
    EXPECT_EQ(errorOf(layoutWithWindow(R"({"bottom_left_x":0,"bottom_left_y":0,"top_right_y":1})")),
              "layouts[1].windows[0].top_right_x is missing");
    EXPECT_EQ(errorOf(layoutWithWindow(R"({"bottom_left_x":0,"bottom_left_y":0,"top_right_x":1})")),
              "layouts[1].windows[0].top_right_y is missing");
}

TEST(LayoutsDecoding, AValueOfAnotherTypeIsAnError)
{
    EXPECT_EQ(errorOf(R"([])"), "the top level is not an object");
    EXPECT_EQ(errorOf(R"("layouts")"), "the top level is not an object");
    EXPECT_EQ(errorOf(R"({"layouts":{}})"), "layouts is not an array");
    EXPECT_EQ(errorOf(R"({"layouts":null})"), "layouts is not an array");
    EXPECT_EQ(errorOf(catalogueWith("7")), "layouts[1] is not an object");
    EXPECT_EQ(errorOf(catalogueWith(R"({"id":7,"name":"B","windows":[]})")), "layouts[1].id is not a string");
    EXPECT_EQ(errorOf(catalogueWith(R"({"id":"b","name":null,"windows":[]})")), "layouts[1].name is not a string");
    EXPECT_EQ(errorOf(catalogueWith(R"({"id":"b","name":"B","windows":{}})")), "layouts[1].windows is not an array");
    EXPECT_EQ(errorOf(layoutWithWindow("[0,0,1,1]")), "layouts[1].windows[0] is not an object");
}

TEST(LayoutsDecoding, ACoordinateMustBeANumber)
{
    for (const std::string_view value : {R"("1")", "null", "true", "[1]", "{}"}) {
        const auto json = layoutWithWindow(R"({"bottom_left_x":0,"bottom_left_y":0,"top_right_x":1,"top_right_y":)" +
                                           std::string(value) + "}");
        EXPECT_EQ(errorOf(json), "layouts[1].windows[0].top_right_y is not a number") << value;
    }
}

TEST(LayoutsDecoding, WhatIsNotJsonIsAnErrorThatTellsThePlace)
{
    EXPECT_THAT(errorOf(R"({"layouts":[],})"), StartsWith("parse error at line 1, column 15: "));
    EXPECT_THAT(errorOf("{\"layouts\":[]"), StartsWith("parse error at line 1, column 14: "));
    EXPECT_THAT(errorOf(""), StartsWith("parse error at line 1, column 1: "));
    EXPECT_THAT(errorOf(R"({"layouts":[]} x)"), StartsWith("parse error at line 1, column 16: "));
    EXPECT_THAT(errorOf(R"({"layouts":[NaN]})"), StartsWith("parse error"));
    EXPECT_THAT(errorOf("// none\n{\"layouts\":[]}"), StartsWith("parse error"));
    EXPECT_THAT(errorOf(layoutWithWindow("1e999")), HasSubstr("number overflow"));
}

TEST(LayoutsDecoding, AnErrorTextStaysShortAndValidWhateverTheFileHolds)
{
    EXPECT_LE(errorOf("\"" + std::string(100'000, 'x')).size(), 200U);
    EXPECT_LE(errorOf(std::string(100'000, '9')).size(), 200U);
    EXPECT_EQ(errorOf("{\"layouts\xFF\":1}").find('\xFF'), std::string::npos);
}

TEST(LayoutsDecoding, DeepNestingIsReadWithoutHarm)
{
    EXPECT_THAT(errorOf(std::string(50'000, '[')), StartsWith("parse error"));
    EXPECT_EQ(errorOf(std::string(50'000, '[') + std::string(50'000, ']')), "the top level is not an object");
}

TEST(LayoutsDecoding, ASummaryKeepsItsIdAndNameThroughJson)
{
    const LayoutSummary summary{"two_stacked", "Zwei \"übereinander\""};
    const auto json = encodeLayoutSummary(summary);
    EXPECT_THAT(json, HasSubstr(R"("id":"two_stacked")"));
    EXPECT_THAT(json, HasSubstr(R"("name":)"));
    const auto result = decodeLayoutSummary(json);
    ASSERT_TRUE(result.has_value()) << result.error();
    EXPECT_EQ(*result, summary);
    EXPECT_EQ(decodeLayoutSummary(R"({"id":"a"})").error(), "name is missing");
    EXPECT_EQ(decodeLayoutSummary(R"([])").error(), "the top level is not an object");
}

TEST(WindowModel, IsComparedAndHashedOverAllFourFields)
{
    const WindowModel window{0.1, 0.2, 0.3, 0.4};
    for (const auto& [name, field] : windowModelFields) {
        auto other = window;
        other.*field = 0.9;
        EXPECT_NE(other, window) << name;
        EXPECT_NE(std::hash<WindowModel>()(other), std::hash<WindowModel>()(window)) << name;
    }
    EXPECT_EQ(std::hash<WindowModel>()({0.0, 0.0, 1.0, 1.0}), std::hash<WindowModel>()({-0.0, 0.0, 1.0, 1.0}));
    const std::unordered_set<WindowModel> windows{window, {0.4, 0.3, 0.2, 0.1}, window};
    EXPECT_EQ(windows.size(), 2U);
}

} // namespace
} // namespace quorvel
