#include "report/Results.h"

#include <algorithm>
#include <stdexcept>

namespace quorvel::bench {

namespace {

void fillIn(Row& row, const Row& other)
{
    if (row.name != other.name) {
        throw std::invalid_argument("other contestants: " + other.name);
    }
    for (const auto& condition : allConditions) {
        if (row.under(condition).absent == Cell::notMeasured) {
            row.under(condition) = other.under(condition);
        }
    }
}

void fillIn(TaskResult& task, const TaskResult& other)
{
    if (task.title != other.title || task.rows.size() != other.rows.size()) {
        throw std::invalid_argument("another task: " + other.title);
    }
    for (std::size_t index = 0; index < task.rows.size(); ++index) {
        fillIn(task.rows[index], other.rows[index]);
    }
    task.budgets.insert(task.budgets.end(), other.budgets.begin(), other.budgets.end());
}

} // namespace

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

Results combined(const std::vector<Results>& runs)
{
    auto all = runs.at(0);
    for (std::size_t run = 1; run < runs.size(); ++run) {
        if (runs[run].tasks.size() != all.tasks.size()) {
            throw std::invalid_argument("other tasks");
        }
        for (std::size_t index = 0; index < all.tasks.size(); ++index) {
            fillIn(all.tasks[index], runs[run].tasks[index]);
        }
    }
    return all;
}

bool allBudgetsMet(const Results& results)
{
    return std::ranges::all_of(
        results.tasks, [](const TaskResult& task) { return std::ranges::all_of(task.budgets, &Budget::isMet); });
}

} // namespace quorvel::bench
