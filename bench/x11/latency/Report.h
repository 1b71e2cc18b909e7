#pragma once

#include <optional>
#include <string>
#include <vector>

#include "latency/Series.h"

namespace quorvel::bench {

// A limit of the project on one measurement: an absolute time, or a factor over another row's median.
struct Budget {
    std::string text;
    double limit = 0.0; // what `value` must not exceed
    double value = 0.0;

    bool isMet() const { return value <= limit; }
};

struct Row {
    std::string name;
    Series series;
};

// A table of what was measured in one run: medians and 95th percentiles, each median as a multiple of the first row's.
class Report {
public:
    Report(std::string title, std::vector<Row> rows) : title(std::move(title)), rows(std::move(rows)) {}

    void addBudget(Budget budget) { budgets.push_back(std::move(budget)); }

    std::string text() const;

    // One line a row and no header: table, row, runs, misses, least, median, 95th percentile, greatest.
    std::string csv() const;

    bool allBudgetsMet() const;
    const std::vector<Budget>& checkedBudgets() const { return budgets; }
    Milliseconds median(std::size_t row) const { return rows.at(row).series.median(); }

private:
    std::string title;
    std::vector<Row> rows;
    std::vector<Budget> budgets;
};

} // namespace quorvel::bench
