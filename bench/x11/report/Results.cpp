#include "report/Results.h"

#include <algorithm>

namespace quorvel::bench {

std::optional<double> ratioToFirst(const TaskResult& task, const Row& row, const Condition& condition)
{
    const auto& first = task.rows.front().under(condition).series;
    const auto& series = row.under(condition).series;
    if (first.isEmpty() || series.isEmpty()) {
        return std::nullopt;
    }
    return series.median() / first.median();
}

std::vector<Budget> checkedBudgets(const std::vector<BudgetRule>& rules, const std::vector<Row>& rows)
{
    std::vector<Budget> budgets;
    for (const auto& rule : rules) {
        const auto& series = rows.at(rule.row).under(rule.condition).series;
        if (series.isEmpty()) {
            continue;
        }
        double value = series.median().count();
        if (rule.reference) {
            const auto& reference = rows.at(*rule.reference).under(rule.condition).series;
            if (reference.isEmpty()) {
                continue;
            }
            value = series.median() / reference.median();
        }
        budgets.push_back({rule.text, rule.limit, value});
    }
    return budgets;
}

bool allBudgetsMet(const Results& results)
{
    return std::ranges::all_of(
        results.tasks, [](const TaskResult& task) { return std::ranges::all_of(task.budgets, &Budget::isMet); });
}

} // namespace quorvel::bench
