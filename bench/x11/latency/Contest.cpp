#include "latency/Contest.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "latency/BusyCores.h"
#include "support/ChildProcess.h"
#include "support/Patience.h"

namespace quorvel::bench {

namespace {

constexpr int warmUpRuns = 3;
constexpr std::string_view compositor = "picom";

// What is not installed of that which the entry needs; empty when nothing is missing.
std::string missingProgram(const Task& task, const Entry& entry, Compositing compositing)
{
    auto programs = entry.programs;
    programs.push_back(task.plan.windowManager.program);
    if (compositing == Compositing::on) {
        programs.emplace_back(compositor);
    }
    const auto missing =
        std::ranges::find_if(programs, [](const std::string& program) { return !xtest::findProgram(program); });
    return missing == programs.end() ? std::string() : *missing;
}

std::vector<Load> loadsOf(std::span<const Condition> conditions, Compositing compositing)
{
    std::vector<Load> loads;
    for (const auto& condition : conditions) {
        if (condition.compositing == compositing) {
            loads.push_back(condition.load);
        }
    }
    return loads;
}

std::vector<Row> rowsOf(const Task& task)
{
    std::vector<Row> rows;
    for (const auto& entry : task.entries) {
        auto& row = rows.emplace_back(Row{.name = entry.name, .role = entry.role});
        row.cells.fill({{}, Cell::notMeasured});
    }
    return rows;
}

} // namespace

// An entry that is ready to be timed.
class Contest::Contender {
public:
    Contender(const Task& task, const Entry& entry, Compositing compositing, Row& row)
        : row(&row), desktop(std::make_unique<BenchDesktop>(task.plan, compositing)), trial(entry.prepare(*desktop))
    {}

    void begin(const Condition& condition)
    {
        if (isOut) {
            row->under(condition).absent = "failed before";
        } else {
            row->under(condition) = {};
        }
    }

    // False when it cannot go on.
    bool runOnce(const Condition& condition, bool isMeasured)
    {
        if (isOut) {
            return true;
        }
        auto& cell = row->under(condition);
        try {
            const auto time = trial();
            if (isMeasured && time) {
                cell.series.add(*time);
            } else if (isMeasured) {
                cell.series.addMiss();
            }
            return true;
        } catch (const xtest::HarnessError& error) {
            isOut = true;
            cell = {{}, fmt::format("failed: {}", error.what())};
            return false;
        }
    }

private:
    Row* row;
    std::unique_ptr<BenchDesktop> desktop;
    Trial trial; // holds programs of the desktop, so it goes first
    bool isOut = false;
};

TaskResult Contest::measure(const Task& task, std::span<const Condition> conditions)
{
    TaskResult result{.title = task.title, .rows = rowsOf(task)};
    for (const auto compositing : {Compositing::off, Compositing::on}) {
        const auto loads = loadsOf(conditions, compositing);
        if (loads.empty()) {
            continue;
        }
        auto contenders = contendersFor(task, compositing, loads, result.rows);
        for (const auto load : loads) {
            takeTurns(contenders, {load, compositing});
        }
    }
    result.budgets = checkedBudgets(task.budgets, result.rows);
    return result;
}

std::vector<Contest::Contender> Contest::contendersFor(const Task& task, Compositing compositing,
                                                       std::span<const Load> loads, std::vector<Row>& rows)
{
    std::vector<Contender> contenders;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const auto giveUp = [&](const std::string& reason) {
            for (const auto load : loads) {
                rows[index].under({load, compositing}).absent = reason;
            }
        };
        const auto& entry = task.entries[index];
        if (const auto missing = missingProgram(task, entry, compositing); !missing.empty()) {
            giveUp(missing + " is not installed");
            continue;
        }
        try {
            contenders.emplace_back(task, entry, compositing, rows[index]);
        } catch (const xtest::HarnessError& error) {
            giveUp(fmt::format("failed: {}", error.what()));
            failed = true;
        }
    }
    return contenders;
}

void Contest::takeTurns(std::vector<Contender>& contenders, const Condition& condition)
{
    std::optional<BusyCores> busyCores;
    if (condition.load == Load::busyCores) {
        busyCores.emplace();
    }
    for (auto& contender : contenders) {
        contender.begin(condition);
    }
    for (int run = -warmUpRuns; run < runs; ++run) {
        for (auto& contender : contenders) {
            failed = !contender.runOnce(condition, run >= 0) || failed;
        }
    }
}

} // namespace quorvel::bench
