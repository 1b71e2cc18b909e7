// Measures what a person waits for, for Quorvel and for other ways of doing the same, on displays of its own.
//
//   latency [--runs N] [--json FILE] [--table NAME] [--condition idle|idle-picom|loaded|loaded-picom]
//
// Exits with status 1 when a budget is not met, 2 when something could not be measured.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "latency/BusyCores.h"
#include "latency/Contest.h"
#include "latency/Tasks.h"
#include "report/ResultsJson.h"
#include "report/ResultsTable.h"

namespace quorvel::bench {
namespace {

struct Options {
    int runs = 20;
    std::string jsonFile{};
    std::vector<Condition> conditions{allConditions.begin(), allConditions.end()};
    std::vector<Task> tasks{};
};

std::vector<Task> allTasks()
{
    std::vector<Task> all;
    for (auto&& tasks : {overlayTasks(), placementTasks(), activationTasks()}) {
        all.insert(all.end(), tasks.begin(), tasks.end());
    }
    return all;
}

bool setRuns(std::string_view text, int& runs)
{
    const auto [end, error] = std::from_chars(text.begin(), text.end(), runs);
    return error == std::errc() && end == text.end() && runs > 0;
}

// False when the value is not one that the option takes.
bool apply(Options& options, std::string_view name, std::string_view value)
{
    if (name == "--runs") {
        return setRuns(value, options.runs);
    }
    if (name == "--json") {
        options.jsonFile = value;
        return true;
    }
    if (name == "--table") {
        std::erase_if(options.tasks, [&](const Task& task) { return task.name != value; });
        return !options.tasks.empty();
    }
    if (name == "--condition") {
        std::erase_if(options.conditions, [&](const Condition& condition) { return nameOf(condition) != value; });
        return !options.conditions.empty();
    }
    return false;
}

std::optional<Options> parse(int count, char** words)
{
    Options options;
    options.tasks = allTasks();
    for (int index = 1; index < count; index += 2) {
        if (index + 1 == count || !apply(options, words[index], words[index + 1])) {
            return std::nullopt;
        }
    }
    return options;
}

std::string usage()
{
    std::string text = "usage: latency [--runs N] [--json FILE] [--table NAME] [--condition NAME]\n\ntables:     ";
    for (const auto& task : allTasks()) {
        text += " " + task.name;
    }
    text += "\nconditions: ";
    for (const auto& condition : allConditions) {
        text += " " + nameOf(condition);
    }
    return text + "\n";
}

double loadAverage()
{
    double lastMinute = 0.0;
    getloadavg(&lastMinute, 1);
    return lastMinute;
}

int run(const Options& options)
{
    Results results{.cores = BusyCores::count(), .loadBefore = loadAverage(), .runs = options.runs};
    Contest contest(options.runs);
    for (const auto& task : options.tasks) {
        fmt::print(stderr, "{} ...\n", task.title);
        results.tasks.push_back(contest.measure(task, options.conditions));
        if (!options.jsonFile.empty()) { // what is measured is kept, whatever comes of the rest
            std::ofstream(options.jsonFile) << toJson(results);
        }
    }
    fmt::print("{}\n{}", tableOf(results), budgetListOf(results));
    if (contest.hasFailures()) {
        return 2;
    }
    return allBudgetsMet(results) ? 0 : 1;
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    try {
        const auto options = quorvel::bench::parse(argumentCount, arguments);
        if (!options) {
            std::fputs(quorvel::bench::usage().c_str(), stderr);
            return 2;
        }
        return quorvel::bench::run(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "latency: %s\n", error.what());
        return 2;
    }
}
