#include "latency/Report.h"

#include <algorithm>

#include <fmt/format.h>

namespace quorvel::bench {

std::string Report::text() const
{
    auto text = fmt::format("{}\n{:<44} {:>5} {:>7} {:>9} {:>9} {:>9} {:>7}\n", title, "", "runs", "missed", "min ms",
                            "median ms", "p95 ms", "ratio");
    const auto reference = rows.empty() ? Milliseconds(0) : rows.front().series.median();
    for (const auto& row : rows) {
        text += fmt::format("{:<44} {:>5} {:>7} {:>9.2f} {:>9.2f} {:>9.2f} {:>6.2f}x\n", row.name, row.series.count(),
                            row.series.missCount(), row.series.quantile(0.0).count(), row.series.median().count(),
                            row.series.quantile(0.95).count(), row.series.median() / reference);
    }
    for (const auto& budget : budgets) {
        text += fmt::format("  {}: {} ({:.2f}, limit {:.2f})\n", budget.isMet() ? "met" : "NOT MET", budget.text,
                            budget.value, budget.limit);
    }
    return text;
}

std::string Report::csv() const
{
    std::string text;
    for (const auto& row : rows) {
        text += fmt::format("\"{}\",\"{}\",{},{},{:.3f},{:.3f},{:.3f},{:.3f}\n", title, row.name, row.series.count(),
                            row.series.missCount(), row.series.quantile(0.0).count(), row.series.median().count(),
                            row.series.quantile(0.95).count(), row.series.quantile(1.0).count());
    }
    return text;
}

bool Report::allBudgetsMet() const
{
    return std::ranges::all_of(budgets, &Budget::isMet);
}

} // namespace quorvel::bench
