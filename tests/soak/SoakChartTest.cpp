#include "soak/SoakChart.h"

#include <variant>

#include <gmock/gmock.h>

namespace quorvel::soak {
namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::Each;
using testing::SizeIs;

Phase phaseOf(std::vector<std::size_t> kibibytes)
{
    Phase phase{.name = "placements", .latency = "letter to the window in place"};
    for (const auto resident : kibibytes) {
        phase.intervals.push_back({.cycle = static_cast<int>(phase.intervals.size() + 1) * 500,
                                   .sample = {.residentKibibytes = resident, .xResources = {{"WINDOW", 3}, {"GC", 2}}},
                                   .median = bench::Milliseconds(1.25),
                                   .percentile95 = bench::Milliseconds(100.0)});
    }
    return phase;
}

std::vector<ViewRect> bars(const bench::Chart& chart, const Color& color)
{
    std::vector<ViewRect> rects;
    for (const auto& command : chart.drawing.commands) {
        const auto* const rect = std::get_if<RoundedRectCommand>(&command);
        if (rect != nullptr && rect->fill == color && rect->rect.height > 0.0) {
            rects.push_back(rect->rect);
        }
    }
    return rects;
}

std::vector<std::string> texts(const bench::Chart& chart)
{
    std::vector<std::string> found;
    for (const auto& command : chart.drawing.commands) {
        if (const auto* const text = std::get_if<TextCommand>(&command)) {
            found.push_back(text->text);
        }
    }
    return found;
}

TEST(SoakChart, BarsOfAPanelAreAsHighAsTheirValues)
{
    const auto& palette = bench::ChartPalette::light();
    const auto chart = soakChart({phaseOf({20'480, 40'960})}, palette);
    const auto shown = bars(chart, palette.quorvel.plain);
    ASSERT_THAT(shown, SizeIs(6)); // of two intervals: memory, X resources, latency
    EXPECT_THAT(shown[0].height * 2.0, DoubleNear(shown[1].height, 1e-9));
    EXPECT_EQ(shown[2].height, shown[3].height);
    EXPECT_EQ(shown[0].maxY(), shown[1].maxY());
}

TEST(SoakChart, TheLastValueOfEachPanelAndTheNumberOfCyclesAreWritten)
{
    const auto written = texts(soakChart({phaseOf({20'480, 40'960})}, bench::ChartPalette::light()));
    for (const char* text : {"placements", "1000 in 2 intervals", "40.0 MiB", "5", "1.25 ms"}) {
        EXPECT_THAT(written, Contains(text));
    }
}

TEST(SoakChart, APercentileFarAboveItsMedianStaysInItsRow)
{
    const auto& palette = bench::ChartPalette::light();
    const auto chart = soakChart({phaseOf({1, 1}), phaseOf({1, 1})}, palette);
    const auto pale = bars(chart, palette.quorvel.composited);
    const auto plain = bars(chart, palette.quorvel.plain);
    ASSERT_THAT(pale, SizeIs(4));
    EXPECT_GT(pale[2].minY(), plain[0].maxY()); // those of the second row below the first
    EXPECT_GT(pale[0].height, plain[4].height);
}

} // namespace
} // namespace quorvel::soak
