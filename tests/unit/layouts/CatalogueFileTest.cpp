#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "layouts/LayoutFrames.h"
#include "layouts/LayoutsDecoding.h"

// The catalogue that ships with the program.

namespace quorvel {
namespace {

using testing::ElementsAre;

LayoutsModel catalogue()
{
    std::ifstream file(QUORVEL_RESOURCES "/layouts.json", std::ios::binary);
    const std::string json{std::istreambuf_iterator<char>(file), {}};
    auto model = decodeLayoutsModel(json);
    EXPECT_TRUE(model.has_value()) << model.error();
    return model.value_or(LayoutsModel{});
}

const LayoutModel& layout(const LayoutsModel& model, std::string_view id)
{
    return *std::ranges::find(model.layouts, id, &LayoutModel::id);
}

// All but those that leave a margin on purpose.
bool isMeantAsTiling(const LayoutModel& layout)
{
    return !layout.id.starts_with("centered");
}

double areaOf(const WindowModel& window)
{
    return (window.top_right_x - window.bottom_left_x) * (window.top_right_y - window.bottom_left_y);
}

bool overlap(const WindowModel& a, const WindowModel& b)
{
    return a.bottom_left_x < b.top_right_x && b.bottom_left_x < a.top_right_x && a.bottom_left_y < b.top_right_y &&
           b.bottom_left_y < a.top_right_y;
}

TEST(CatalogueFile, BeginsWithTheSixDefaultLayouts)
{
    const auto model = catalogue();
    std::vector<std::string> ids;
    std::ranges::transform(model.layouts, std::back_inserter(ids), &LayoutModel::id);
    ASSERT_GE(ids.size(), 24U);
    ids.resize(6);
    EXPECT_THAT(ids, ElementsAre("one_full_screen", "centered", "two_side_by_side", "two_stacked", "three_side_by_side",
                                 "four_tiled"));
}

TEST(CatalogueFile, TheDefaultLayoutsAreWhatTheirIdsSay)
{
    const auto model = catalogue();
    constexpr double third = 1.0 / 3.0;
    constexpr double twoThirds = 2.0 / 3.0;
    EXPECT_THAT(layout(model, "one_full_screen").windows, ElementsAre(WindowModel{0, 0, 1, 1}));
    EXPECT_THAT(layout(model, "centered").windows, ElementsAre(WindowModel{0.125, 0.1, 0.875, 0.9}));
    EXPECT_THAT(layout(model, "two_side_by_side").windows,
                ElementsAre(WindowModel{0, 0, 0.5, 1}, WindowModel{0.5, 0, 1, 1}));
    EXPECT_THAT(layout(model, "two_stacked").windows,
                ElementsAre(WindowModel{0, 0.5, 1, 1}, WindowModel{0, 0, 1, 0.5}));
    EXPECT_THAT(
        layout(model, "three_side_by_side").windows,
        ElementsAre(WindowModel{0, 0, third, 1}, WindowModel{third, 0, twoThirds, 1}, WindowModel{twoThirds, 0, 1, 1}));
    EXPECT_THAT(layout(model, "four_tiled").windows,
                ElementsAre(WindowModel{0, 0.5, 0.5, 1}, WindowModel{0.5, 0.5, 1, 1}, WindowModel{0, 0, 0.5, 0.5},
                            WindowModel{0.5, 0, 1, 0.5}));
}

TEST(CatalogueFile, EveryLayoutHasAnIdAndANameOfItsOwn)
{
    std::set<std::string> ids;
    std::set<std::string> names;
    for (const auto& layout : catalogue().layouts) {
        EXPECT_TRUE(ids.insert(layout.id).second) << layout.id;
        EXPECT_TRUE(names.insert(layout.name).second) << layout.name;
        EXPECT_EQ(layout.id.find_first_not_of("abcdefghijklmnopqrstuvwxyz_"), std::string::npos) << layout.id;
        EXPECT_NE(layout.name, "");
    }
}

TEST(CatalogueFile, EveryFrameHasALetterAndAPlaceOfItsOwnInsideTheUnitSquare)
{
    for (const auto& layout : catalogue().layouts) {
        EXPECT_GE(layout.windows.size(), 1U) << layout.id;
        EXPECT_LE(layout.windows.size(), 26U) << layout.id;
        for (const auto& window : layout.windows) {
            EXPECT_GE(window.bottom_left_x, 0.0) << layout.id;
            EXPECT_GE(window.bottom_left_y, 0.0) << layout.id;
            EXPECT_LT(window.bottom_left_x, window.top_right_x) << layout.id;
            EXPECT_LT(window.bottom_left_y, window.top_right_y) << layout.id;
            EXPECT_LE(window.top_right_x, 1.0) << layout.id;
            EXPECT_LE(window.top_right_y, 1.0) << layout.id;
            EXPECT_EQ(std::ranges::count(layout.windows, window), 1) << layout.id;
        }
    }
}

TEST(CatalogueFile, TilingsCoverTheScreenWithoutOverlap)
{
    for (const auto& layout : catalogue().layouts) {
        if (!isMeantAsTiling(layout)) {
            continue;
        }
        double area = 0.0;
        for (const auto& window : layout.windows) {
            area += areaOf(window);
            EXPECT_EQ(std::ranges::count_if(layout.windows, [&](const auto& other) { return overlap(window, other); }),
                      1)
                << layout.id;
        }
        EXPECT_NEAR(area, 1.0, 1e-12) << layout.id;
    }
}

TEST(CatalogueFile, NeighboursInATilingShareTheirEdgeExactly)
{
    for (const auto& layout : catalogue().layouts) {
        if (!isMeantAsTiling(layout)) {
            continue;
        }
        std::set<double> left{1.0};
        std::set<double> right{0.0};
        std::set<double> bottom{1.0};
        std::set<double> top{0.0};
        for (const auto& window : layout.windows) {
            left.insert(window.bottom_left_x);
            right.insert(window.top_right_x);
            bottom.insert(window.bottom_left_y);
            top.insert(window.top_right_y);
        }
        EXPECT_EQ(left, right) << layout.id;
        EXPECT_EQ(bottom, top) << layout.id;
    }
}

TEST(CatalogueFile, LettersOfATilingRunByRowsFromTheTopLeft)
{
    for (const auto& layout : catalogue().layouts) {
        if (isMeantAsTiling(layout)) {
            EXPECT_TRUE(std::ranges::is_sorted(layout.windows, {}, [](const WindowModel& window) {
                return std::pair(-window.top_right_y, window.bottom_left_x);
            })) << layout.id;
        }
    }
}

TEST(CatalogueFile, ItsFramesNeedNoScalingForPictures)
{
    for (const auto& layout : catalogue().layouts) {
        std::vector<UnitRect> frames;
        std::ranges::transform(layout.windows, std::back_inserter(frames),
                               [](const WindowModel& window) { return frameFromRecord(windowRecord(window)).value(); });
        EXPECT_EQ(normalizedFrames(frames), frames) << layout.id;
    }
}

} // namespace
} // namespace quorvel
