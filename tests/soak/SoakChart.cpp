#include "soak/SoakChart.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace quorvel::soak {
namespace {

constexpr double chartWidth = 960.0;
constexpr double margin = 28.0;
constexpr double labelWidth = 160.0;
constexpr double gap = 24.0;
constexpr double valueWidth = 72.0; // right of the bars
constexpr double headerHeight = 64.0;
constexpr double rowHeight = 76.0;
constexpr double barHeight = 52.0; // of the greatest value
constexpr double lineHeight = 18.0;
constexpr double shareOfMedians = 0.6; // of the height, where something stands behind them

constexpr Font titleFont{20.0, FontWeight::bold};
constexpr Font headingFont{13.0, FontWeight::semibold};
constexpr Font smallFont{11.0, FontWeight::regular};

struct Column {
    std::string_view title;
    std::function<double(const Interval&)> value;
    std::function<double(const Interval&)> behind; // a paler bar; 0 for none
    std::function<std::string(double)> text;
};

double totalOfX(const Interval& interval)
{
    double total = 0.0;
    for (const auto& [kind, count] : interval.sample.xResources) {
        total += count;
    }
    return total;
}

double nothing(const Interval& /*interval*/)
{
    return 0.0;
}

std::array<Column, 3> columns()
{
    constexpr double kibibytesInMebibyte = 1024.0;
    return {Column{"Resident memory",
                   [](const Interval& interval) {
                       return static_cast<double>(interval.sample.residentKibibytes) / kibibytesInMebibyte;
                   },
                   nothing, [](double value) { return fmt::format("{:.1f} MiB", value); }},
            Column{"X resources", totalOfX, nothing, [](double value) { return fmt::format("{:.0f}", value); }},
            Column{"Latency, median (pale: 95 %)", [](const Interval& interval) { return interval.median.count(); },
                   [](const Interval& interval) { return interval.percentile95.count(); },
                   [](double value) { return fmt::format("{:.2f} ms", value); }}};
}

class ChartBuilder {
public:
    ChartBuilder(const std::vector<Phase>& phases, const bench::ChartPalette& palette)
        : phases(phases), palette(palette)
    {}

    bench::Chart build()
    {
        const Size size{chartWidth, headerHeight + rowHeight * static_cast<double>(phases.size()) + margin};
        addBar({0.0, 0.0, size.width, size.height}, palette.background);
        addText("What one run of the program holds", titleFont, palette.text,
                {margin, margin / 2, chartWidth - 2 * margin, 26.0});
        const auto all = columns();
        for (std::size_t column = 0; column < all.size(); ++column) {
            addText(std::string(all.at(column).title), headingFont, palette.text,
                    {columnLeft(column), headerHeight - lineHeight, columnWidth(), lineHeight});
        }
        for (std::size_t row = 0; row < phases.size(); ++row) {
            const double bottom = headerHeight + rowHeight * static_cast<double>(row + 1);
            addLabel(phases[row], bottom);
            for (std::size_t column = 0; column < all.size(); ++column) {
                addPanel(phases[row], all.at(column), columnLeft(column), bottom);
            }
        }
        return {size, std::move(drawing)};
    }

private:
    static double columnWidth() { return (chartWidth - 2 * margin - labelWidth - 3 * gap) / 3; }

    static double columnLeft(std::size_t column)
    {
        return margin + labelWidth + gap + static_cast<double>(column) * (columnWidth() + gap);
    }

    void addLabel(const Phase& phase, double bottom)
    {
        const double top = bottom - lineHeight * 2;
        addText(phase.name, headingFont, palette.text, {margin, top, labelWidth, lineHeight});
        addText(fmt::format("{} in {} intervals", phase.intervals.back().cycle, phase.intervals.size()), smallFont,
                palette.mutedText, {margin, top + lineHeight, labelWidth, lineHeight});
    }

    void addPanel(const Phase& phase, const Column& column, double left, double bottom)
    {
        double greatest = 0.0;
        for (const auto& interval : phase.intervals) {
            const double share = column.behind(interval) > 0.0 ? shareOfMedians : 1.0;
            greatest = std::max(greatest, column.value(interval) / share);
        }
        const double pitch = (columnWidth() - valueWidth) / static_cast<double>(phase.intervals.size());
        const double scale = greatest > 0.0 ? barHeight / greatest : 0.0;
        double x = left;
        for (const auto& interval : phase.intervals) {
            const double width = pitch * 0.7;
            const double behind = std::min(column.behind(interval) * scale, barHeight);
            const double height = column.value(interval) * scale;
            addBar({x, bottom - behind, width, behind}, palette.quorvel.composited);
            addBar({x, bottom - height, width, height}, palette.quorvel.plain);
            x += pitch;
        }
        addBar({left, bottom, columnWidth() - valueWidth, 1.0}, palette.grid);
        addText(column.text(column.value(phase.intervals.back())), smallFont, palette.text,
                {x + 6.0, bottom - lineHeight, valueWidth - 6.0, lineHeight});
    }

    void addBar(const ViewRect& rect, const Color& color)
    {
        drawing.commands.emplace_back(
            RoundedRectCommand{rect, 0.0, CornerStyle::circular, Backing::open, color, {}, {}});
    }

    void addText(std::string text, const Font& font, const Color& color, const ViewRect& box)
    {
        drawing.commands.emplace_back(TextCommand{std::move(text), font, color, box, TextAlignment::leading, {}});
    }

    const std::vector<Phase>& phases;
    const bench::ChartPalette& palette;
    DrawList drawing;
};

} // namespace

bench::Chart soakChart(const std::vector<Phase>& phases, const bench::ChartPalette& palette)
{
    return ChartBuilder(phases, palette).build();
}

} // namespace quorvel::soak
