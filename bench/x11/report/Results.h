#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "report/Condition.h"
#include "report/Series.h"

namespace quorvel::bench {

enum class Role {
    quorvel,
    minimal, // the least program that does the same
    peer,
};

// What one contestant took under one condition, or why that is not known.
struct Cell {
    static constexpr auto notMeasured = "not measured";

    Series series{};
    std::string absent{}; // such as "rofi is not installed"

    bool operator==(const Cell&) const = default;
};

struct Row {
    std::string name{};
    Role role = Role::peer;
    std::array<Cell, allConditions.size()> cells{};

    const Cell& under(const Condition& condition) const { return cells.at(indexOf(condition)); }
    Cell& under(const Condition& condition) { return cells.at(indexOf(condition)); }

    bool operator==(const Row&) const = default;
};

// A limit of the project on the median of one row: in milliseconds, or as a multiple of another row's median.
struct BudgetRule {
    std::string text{};
    double limit = 0.0;
    std::size_t row = 0;
    std::optional<std::size_t> reference{};
    Condition condition{};
};

// What came of a rule.
struct Budget {
    std::string text{};
    double limit = 0.0;
    double value = 0.0;

    bool isMet() const { return value <= limit; }

    bool operator==(const Budget&) const = default;
};

// One thing that a person waits for, done by several contestants; the first of them is Quorvel.
struct TaskResult {
    std::string title{};
    std::vector<Row> rows{};
    std::vector<Budget> budgets{};

    bool operator==(const TaskResult&) const = default;
};

struct Results {
    unsigned cores = 0;
    double loadBefore = 0.0; // the load average of the last minute before the first measurement
    int runs = 0;
    std::vector<TaskResult> tasks{};

    bool operator==(const Results&) const = default;
};

// How many times the median of the task's first row the cell's is; nothing where one of the two is not known.
std::optional<double> ratioToFirst(const TaskResult& task, const Row& row, const Condition& condition);

// Holds the rows to the rules; rules on what was not measured are passed over.
std::vector<Budget> checkedBudgets(const std::vector<BudgetRule>& rules, const std::vector<Row>& rows);

// What was measured in several runs of the same tasks, each under other conditions: the first one with what it lacks
// from the others. Throws std::invalid_argument for other tasks or contestants.
Results combined(const std::vector<Results>& runs);

bool allBudgetsMet(const Results& results);

} // namespace quorvel::bench
