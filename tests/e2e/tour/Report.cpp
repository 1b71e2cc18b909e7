#include "e2e/tour/Report.h"

#include <algorithm>

#include <fmt/format.h>

namespace quorvel::tour {

bool Report::allPassed() const
{
    return !rows.empty() && std::ranges::all_of(rows, &Row::passed);
}

std::string Report::table() const
{
    Row widths{.key = "keys", .effect = "does", .expected = "expected", .actual = "actual"};
    const auto widen = [](std::string& column, const std::string& text) {
        column.resize(std::max(column.size(), text.size()));
    };
    for (const Row& row : rows) {
        widen(widths.key, row.key);
        widen(widths.effect, row.effect);
        widen(widths.expected, row.expected);
        widen(widths.actual, row.actual);
    }
    const auto line = [&](const Row& row, const std::string& verdict) {
        return fmt::format("{:<{}}  {:<{}}  {:<{}}  {:<{}}  {}\n", row.key, widths.key.size(), row.effect,
                           widths.effect.size(), row.expected, widths.expected.size(), row.actual, widths.actual.size(),
                           verdict);
    };
    std::string text = line({.key = "keys", .effect = "does", .expected = "expected", .actual = "actual"}, "");
    for (const Row& row : rows) {
        text += line(row, row.passed ? "ok" : "WRONG");
    }
    return text;
}

std::string describe(const xtest::PixelRect& rect)
{
    return fmt::format("{} x {} at ({}, {})", rect.width, rect.height, rect.x, rect.y);
}

} // namespace quorvel::tour
