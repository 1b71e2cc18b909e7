#include "report/SpeedChart.h"

#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedTextMetrics.h"
#include "tests/unit/bench/SampleResults.h"

namespace quorvel::bench {
namespace {

class SpeedChartTest : public testing::Test {
protected:
    Chart draw(const Results& results) { return speedChart(results, palette, metrics); }

    static std::vector<TextCommand> textsOf(const Chart& chart)
    {
        std::vector<TextCommand> texts;
        for (const auto& command : chart.drawing.commands) {
            if (const auto* text = std::get_if<TextCommand>(&command)) {
                texts.push_back(*text);
            }
        }
        return texts;
    }

    static bool shows(const Chart& chart, const std::string& wanted)
    {
        return std::ranges::any_of(textsOf(chart), [&](const TextCommand& text) { return text.text == wanted; });
    }

    // From top to bottom; the first two of a colour stand in the legend.
    std::vector<ViewRect> barsOf(const Chart& chart, Role role, Compositing compositing) const
    {
        std::vector<ViewRect> bars;
        for (const auto& command : chart.drawing.commands) {
            const auto* shape = std::get_if<RoundedRectCommand>(&command);
            if (shape != nullptr && shape->fill == palette.barOf(role, compositing)) {
                bars.push_back(shape->rect);
            }
        }
        return bars;
    }

    const ChartPalette& palette = ChartPalette::light();
    Journal journal;
    SimulatedTextMetrics metrics{journal};
};

TEST_F(SpeedChartTest, NoTextIsCutAndNothingLeavesThePicture)
{
    auto task = sampleTask();
    task.rows[1].name = "a tool with a name that is far longer than the others (sxhkd)";
    const auto chart = draw({.tasks = {task, task}});
    for (const auto& text : textsOf(chart)) {
        EXPECT_LE(metrics.measure(text.text, text.font).width, text.box.width) << text.text;
        EXPECT_GE(text.box.minX(), 0.0) << text.text;
        EXPECT_LE(text.box.maxX(), chart.size.width) << text.text;
        EXPECT_LE(text.box.maxY(), chart.size.height) << text.text;
    }
}

TEST_F(SpeedChartTest, BarsEndWhereTheLogarithmicScaleHasTheMedian)
{
    Row first{.name = "first", .role = Role::quorvel};
    first.under(idle).series = seriesOf({1.0});
    Row second{.name = "second", .role = Role::minimal};
    second.under(idle).series = seriesOf({10.0});
    Row third{.name = "third", .role = Role::peer};
    third.under(idle).series = seriesOf({100.0});
    const auto chart = draw({.tasks = {{"task", {first, second, third}, {}}}});
    const double one = barsOf(chart, Role::quorvel, Compositing::off).at(1).width;
    const double ten = barsOf(chart, Role::minimal, Compositing::off).at(1).width;
    const double hundred = barsOf(chart, Role::peer, Compositing::off).at(1).width;
    EXPECT_GT(ten, one);
    EXPECT_NEAR(hundred, 2.0 * ten, 2.0); // the scale begins at one, whose bar has the least width
}

TEST_F(SpeedChartTest, IdleAndBusyAreColumnsAndCompositorsAreUpperAndLowerBars)
{
    const auto chart = draw({.tasks = {sampleTask()}});
    const auto plain = barsOf(chart, Role::quorvel, Compositing::off);
    const auto composited = barsOf(chart, Role::quorvel, Compositing::on);
    ASSERT_EQ(plain.size(), 3U); // one in the legend
    ASSERT_EQ(composited.size(), 2U);
    EXPECT_LT(plain[1].maxX(), plain[2].minX());
    EXPECT_DOUBLE_EQ(plain[1].minX(), composited[1].minX());
    EXPECT_LT(plain[1].maxY(), composited[1].minY());
}

TEST_F(SpeedChartTest, TheMarkStandsAtThe95thPercentile)
{
    Row row{.name = "Quorvel", .role = Role::quorvel};
    row.under(idle).series = seriesOf({1.0, 10.0, 100.0});
    Row slow{.name = "slow", .role = Role::peer};
    slow.under(idle).series = seriesOf({100.0});
    const auto chart = draw({.tasks = {{"task", {row, slow}, {}}}});
    const double end = barsOf(chart, Role::peer, Compositing::off).at(1).maxX();
    const auto isMarkThere = [&](const DrawCommand& command) {
        const auto* shape = std::get_if<RoundedRectCommand>(&command);
        return shape != nullptr && shape->fill == palette.mutedText && std::abs(shape->rect.midX() - end) < 0.01 &&
               shape->rect.height > 2.0;
    };
    EXPECT_EQ(std::ranges::count_if(chart.drawing.commands, isMarkThere), 2);
}

TEST_F(SpeedChartTest, MediansPercentilesAndReasonsAreWritten)
{
    const auto chart = draw({.tasks = {sampleTask()}});
    EXPECT_TRUE(shows(chart, "153"));
    EXPECT_TRUE(shows(chart, "12.5"));
    EXPECT_TRUE(shows(chart, "picom is not installed"));
    EXPECT_TRUE(shows(chart, "never happened"));
}

TEST_F(SpeedChartTest, LightAndDarkDifferInColoursOnly)
{
    const Results results{.tasks = {sampleTask()}};
    const auto light = speedChart(results, ChartPalette::light(), metrics);
    const auto dark = speedChart(results, ChartPalette::dark(), metrics);
    EXPECT_EQ(light.size, dark.size);
    EXPECT_EQ(light.drawing.commands.size(), dark.drawing.commands.size());
    EXPECT_NE(light.drawing, dark.drawing);
}

} // namespace
} // namespace quorvel::bench
