#include "report/SpeedChart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "report/LogScale.h"
#include "report/ResultsTable.h"

namespace quorvel::bench {

namespace {

constexpr double chartWidth = 960.0;
constexpr double margin = 28.0;
constexpr double columnGap = 32.0;
constexpr double labelGap = 16.0;
constexpr double rowHeight = 29.0;
constexpr double barHeight = 9.0;
constexpr double barPitch = 12.0;
constexpr double taskHeight = 40.0;
constexpr double valueGap = 5.0;
constexpr double valueWidth = 40.0; // of each of the two columns of numbers
constexpr double markWidth = 1.5;
constexpr double lineHeight = 18.0;

constexpr Font titleFont{20.0, FontWeight::bold};
constexpr Font headingFont{13.0, FontWeight::semibold};
constexpr Font textFont{13.0, FontWeight::regular};
constexpr Font smallFont{11.0, FontWeight::regular};

struct Column {
    Load load;
    std::string_view title;
};
constexpr std::array columns = {Column{Load::idle, "Idle machine"}, Column{Load::busyCores, "All cores busy"}};

LogScale scaleOf(const Results& results)
{
    auto least = Milliseconds(1.0);
    auto greatest = Milliseconds(10.0);
    for (const auto& task : results.tasks) {
        for (const auto& row : task.rows) {
            for (const auto& cell : row.cells) {
                if (!cell.series.isEmpty()) {
                    least = std::min(least, cell.series.median());
                    greatest = std::max(greatest, cell.series.percentile95());
                }
            }
        }
    }
    return {least, greatest};
}

RoundedRectCommand filled(const ViewRect& rect, double cornerRadius, const Color& color)
{
    return {rect, cornerRadius, CornerStyle::circular, Backing::open, color, {}, {}};
}

class ChartBuilder {
public:
    ChartBuilder(const Results& results, const ChartPalette& palette, const TextMetrics& metrics)
        : results(results), palette(palette), metrics(metrics), scale(scaleOf(results)), labelWidth(widestLabel())
    {}

    Chart build()
    {
        addHeader();
        const double plotTop = top;
        for (const auto& task : results.tasks) {
            addTask(task);
        }
        addAxes(plotTop - lineHeight);
        addAxes(top + 4.0);
        addGrid(plotTop, top + 2.0);
        const Size size{chartWidth, top + 4.0 + lineHeight + margin};
        background.commands.insert(background.commands.begin(),
                                   filled({0.0, 0.0, size.width, size.height}, 0.0, palette.background));
        background.commands.insert(background.commands.end(), foreground.commands.begin(), foreground.commands.end());
        return {size, std::move(background)};
    }

private:
    static const Font& fontOf(const Row& row) { return row.role == Role::quorvel ? headingFont : textFont; }

    double widestLabel() const
    {
        double width = 0.0;
        for (const auto& task : results.tasks) {
            for (const auto& row : task.rows) {
                width = std::max(width, metrics.measure(row.name, fontOf(row)).width);
            }
        }
        return width;
    }

    double columnWidth() const { return (chartWidth - 2.0 * margin - labelWidth - labelGap - columnGap) / 2.0; }

    double columnLeft(std::size_t column) const
    {
        return margin + labelWidth + labelGap + static_cast<double>(column) * (columnWidth() + columnGap);
    }

    double columnRight(std::size_t column) const { return columnLeft(column) + columnWidth(); }

    // Numbers have the right end of the column.
    double xOf(std::size_t column, Milliseconds time) const
    {
        return columnLeft(column) + scale.position(time) * (columnWidth() - valueGap - 2.0 * valueWidth);
    }

    void addHeader()
    {
        const double width = chartWidth - 2.0 * margin;
        addText("From the key press to its effect", titleFont, palette.text, {margin, top, width, 26.0});
        top += 30.0;
        addText(
            "Bars end at the median, marks stand at the 95th percentile (p95); milliseconds on a logarithmic scale.",
            textFont, palette.mutedText, {margin, top, width, lineHeight});
        top += 32.0;
        addLegend();
        top += 34.0;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            addText(columns.at(column).title, headingFont, palette.text,
                    {columnLeft(column), top, columnWidth(), lineHeight});
        }
        top += 2.0 * lineHeight + 4.0;
    }

    void addLegend()
    {
        double left = margin;
        for (const auto& [role, name] :
             {std::pair{Role::quorvel, "Quorvel"}, std::pair{Role::minimal, "minimal X program"},
              std::pair{Role::peer, "another tool"}}) {
            left =
                addLegendEntry(left, name, palette.barOf(role, Compositing::off), palette.barOf(role, Compositing::on));
        }
        addText("upper bar: no compositor, lower bar: picom", smallFont, palette.mutedText,
                {left, top, chartWidth - margin - left, lineHeight});
    }

    // Where the next one begins.
    double addLegendEntry(double left, std::string_view name, const Color& upper, const Color& lower)
    {
        constexpr double swatch = 18.0;
        addBar({left, top + 3.0, swatch, 5.0}, upper);
        addBar({left, top + 10.0, swatch, 5.0}, lower);
        const double textLeft = left + swatch + 7.0;
        const double width = metrics.measure(name, smallFont).width;
        addText(name, smallFont, palette.text, {textLeft, top, width, lineHeight});
        return textLeft + width + 24.0;
    }

    void addTask(const TaskResult& task)
    {
        addText(task.title, headingFont, palette.text,
                {margin, top + taskHeight - lineHeight - 6.0, chartWidth - 2.0 * margin, lineHeight});
        top += taskHeight;
        for (const auto& row : task.rows) {
            addText(row.name, fontOf(row), palette.text, {margin, top, labelWidth, rowHeight - 6.0});
            for (std::size_t column = 0; column < columns.size(); ++column) {
                addCell(row, column, Compositing::off, top);
                addCell(row, column, Compositing::on, top + barPitch);
            }
            top += rowHeight;
        }
    }

    void addCell(const Row& row, std::size_t column, Compositing compositing, double y)
    {
        const auto& [series, absent] = row.under({columns.at(column).load, compositing});
        const double left = columnLeft(column);
        if (series.isEmpty()) {
            addText(absent.empty() ? "never happened" : absent, smallFont, palette.mutedText,
                    {left + valueGap, y, columnWidth() - valueGap, barHeight});
            return;
        }
        const auto& color = palette.barOf(row.role, compositing);
        const double median = xOf(column, series.median());
        const double percentile = xOf(column, series.percentile95());
        addBar({left, y, std::max(median - left, 1.0), barHeight}, color);
        addBox({median, y + (barHeight - 1.0) / 2.0, percentile - median, 1.0}, palette.mutedText);
        addBox({percentile - markWidth / 2.0, y + 1.0, markWidth, barHeight - 2.0}, palette.mutedText);
        addNumbers(column, y, barHeight, timeText(series.median()), timeText(series.percentile95()));
    }

    void addNumbers(std::size_t column, double y, double height, std::string_view median, std::string_view percentile)
    {
        const double right = columnRight(column);
        addText(median, smallFont, palette.text, {right - 2.0 * valueWidth, y, valueWidth, height},
                TextAlignment::trailing);
        addText(percentile, smallFont, palette.mutedText, {right - valueWidth, y, valueWidth, height},
                TextAlignment::trailing);
    }

    void addAxes(double y)
    {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            addNumbers(column, y, lineHeight, "median", "p95");
            for (const auto tick : scale.ticks()) {
                constexpr double halfWidth = 30.0;
                addText(tickText(tick), smallFont, palette.mutedText,
                        {xOf(column, tick) - halfWidth, y, 2.0 * halfWidth, lineHeight}, TextAlignment::center);
            }
        }
    }

    void addGrid(double from, double to)
    {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            for (const auto tick : scale.ticks()) {
                background.commands.emplace_back(
                    filled({std::round(xOf(column, tick)), from, 1.0, to - from}, 0.0, palette.grid));
            }
        }
    }

    void addBox(const ViewRect& rect, const Color& color)
    {
        foreground.commands.emplace_back(filled(rect, 0.0, color));
    }

    void addBar(const ViewRect& rect, const Color& color)
    {
        foreground.commands.emplace_back(filled(rect, 1.5, color));
    }

    void addText(std::string_view text, const Font& font, const Color& color, const ViewRect& box,
                 TextAlignment alignment = TextAlignment::leading)
    {
        foreground.commands.emplace_back(TextCommand{std::string(text), font, color, box, alignment, {}});
    }

    const Results& results;
    const ChartPalette& palette;
    const TextMetrics& metrics;
    LogScale scale;
    double labelWidth;
    double top = margin;
    DrawList background;
    DrawList foreground;
};

} // namespace

Chart speedChart(const Results& results, const ChartPalette& palette, const TextMetrics& metrics)
{
    return ChartBuilder(results, palette, metrics).build();
}

} // namespace quorvel::bench
