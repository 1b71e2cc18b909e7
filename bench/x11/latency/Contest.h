#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "latency/BenchDesktop.h"
#include "latency/Trial.h"
#include "report/Results.h"

namespace quorvel::bench {

// One way of doing a task.
struct Entry {
    std::string name;
    Role role = Role::peer;
    std::vector<std::string> programs;           // what must be installed for it
    std::function<Trial(BenchDesktop&)> prepare; // starts what it needs on a fresh desktop
};

// One thing that a person waits for, and who is timed doing it; Quorvel comes first.
struct Task {
    std::string name; // on the command line
    std::string title;
    DesktopPlan plan{};
    std::vector<Entry> entries{};
    std::vector<BudgetRule> budgets{};
};

// Times tasks. The contestants take turns, run by run, so that whatever else the machine does befalls all of them
// alike; each has a desktop of its own, so that none has to hear of what another one does.
class Contest {
public:
    explicit Contest(int runs) : runs(runs) {}

    TaskResult measure(const Task& task, std::span<const Condition> conditions);

    // Whether a contestant that is installed could not be measured.
    bool hasFailures() const { return failed; }

private:
    class Contender;

    std::vector<Contender> contendersFor(const Task& task, Compositing compositing, std::span<const Load> loads,
                                         std::vector<Row>& rows);
    void takeTurns(std::vector<Contender>& contenders, const Condition& condition);

    int runs;
    bool failed = false;
};

} // namespace quorvel::bench
