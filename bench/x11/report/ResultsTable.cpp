#include "report/ResultsTable.h"

#include <algorithm>
#include <array>
#include <vector>

#include <fmt/format.h>

namespace quorvel::bench {

namespace {

// What a character of a terminal takes; all that stands in tables is one column wide.
std::size_t widthOf(const std::string& text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

using Line = std::vector<std::string>;

std::string cellText(const TaskResult& task, const Row& row, const Condition& condition)
{
    const auto& [series, absent] = row.under(condition);
    if (!absent.empty()) {
        return absent;
    }
    if (series.isEmpty()) {
        return "never happened";
    }
    auto text = fmt::format("{} ({})", timeText(series.median()), timeText(series.percentile95()));
    if (const auto ratio = ratioToFirst(task, row, condition)) {
        text += fmt::format(" {:.{}f}×", *ratio, *ratio < 10.0 ? 2 : 1);
    }
    if (series.missCount() > 0) {
        text += fmt::format(", {} of {} missed", series.missCount(), series.missCount() + series.all().size());
    }
    return text;
}

Line headingOf(std::string first)
{
    Line line = {std::move(first)};
    line.resize(1 + allConditions.size());
    return line;
}

std::vector<Line> linesOf(const Results& results)
{
    std::vector<Line> lines = {headingOf("ms: median (95th percentile) ratio")};
    std::ranges::transform(allConditions, lines.front().begin() + 1, nameOf);
    for (const auto& task : results.tasks) {
        lines.push_back(headingOf("**" + task.title + "**"));
        for (const auto& row : task.rows) {
            auto& line = lines.emplace_back(headingOf(row.name));
            std::ranges::transform(allConditions, line.begin() + 1,
                                   [&](const Condition& condition) { return cellText(task, row, condition); });
        }
    }
    return lines;
}

std::vector<std::size_t> columnWidths(const std::vector<Line>& lines)
{
    std::vector<std::size_t> widths(1 + allConditions.size());
    for (const auto& line : lines) {
        std::ranges::transform(line, widths, widths.begin(), [](const std::string& cell, std::size_t width) {
            return std::max(width, widthOf(cell));
        });
    }
    return widths;
}

std::string ruleUnder(const std::vector<std::size_t>& widths)
{
    std::string rule = "|";
    for (const auto width : widths) {
        rule += std::string(width + 2, '-') + "|";
    }
    return rule + "\n";
}

} // namespace

std::string tableOf(const Results& results)
{
    const auto lines = linesOf(results);
    const auto widths = columnWidths(lines);
    std::string text;
    for (const auto& line : lines) {
        text += "|";
        for (std::size_t column = 0; column < line.size(); ++column) {
            text += " " + line[column] + std::string(widths[column] - widthOf(line[column]), ' ') + " |";
        }
        text += "\n";
        if (&line == &lines.front()) {
            text += ruleUnder(widths);
        }
    }
    return text;
}

std::string budgetListOf(const Results& results)
{
    std::string text;
    for (const auto& task : results.tasks) {
        for (const auto& budget : task.budgets) {
            text += fmt::format("- {}: {}: {:.2f}, limit {:.2f}\n", budget.isMet() ? "met" : "NOT MET", budget.text,
                                budget.value, budget.limit);
        }
    }
    return text;
}

std::string timeText(Milliseconds time)
{
    const int digits = time.count() < 9.995 ? 2 : time.count() < 99.95 ? 1 : 0;
    return fmt::format("{:.{}f}", time.count(), digits);
}

} // namespace quorvel::bench
