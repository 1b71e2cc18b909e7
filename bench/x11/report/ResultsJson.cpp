#include "report/ResultsJson.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace quorvel::bench {

NLOHMANN_JSON_SERIALIZE_ENUM(Role, {{Role::peer, "peer"}, {Role::minimal, "minimal"}, {Role::quorvel, "quorvel"}})

namespace {

using nlohmann::ordered_json;

ordered_json jsonOf(const TaskResult& task, const Row& row, const Condition& condition)
{
    const auto& [series, absent] = row.under(condition);
    if (!absent.empty()) {
        return {{"absent", absent}};
    }
    auto times = ordered_json::array();
    for (const auto time : series.all()) {
        times.push_back(time.count());
    }
    ordered_json json = {{"misses", series.missCount()}};
    if (!series.isEmpty()) {
        json["median"] = series.median().count();
        json["percentile95"] = series.percentile95().count();
    }
    if (const auto ratio = ratioToFirst(task, row, condition)) {
        json["ratio"] = *ratio;
    }
    json["times"] = std::move(times);
    return json;
}

Cell cellFrom(const ordered_json& json)
{
    if (json.contains("absent")) {
        return {{}, json.at("absent")};
    }
    std::vector<Milliseconds> times;
    for (const double time : json.at("times")) {
        times.emplace_back(time);
    }
    return {Series(std::move(times), json.at("misses")), {}};
}

ordered_json jsonOf(const TaskResult& task)
{
    auto rows = ordered_json::array();
    for (const auto& row : task.rows) {
        ordered_json cells;
        for (const auto& condition : allConditions) {
            cells[nameOf(condition)] = jsonOf(task, row, condition);
        }
        rows.push_back({{"name", row.name}, {"role", row.role}, {"conditions", std::move(cells)}});
    }
    auto budgets = ordered_json::array();
    for (const auto& budget : task.budgets) {
        budgets.push_back(
            {{"text", budget.text}, {"limit", budget.limit}, {"value", budget.value}, {"met", budget.isMet()}});
    }
    return {{"title", task.title}, {"rows", std::move(rows)}, {"budgets", std::move(budgets)}};
}

TaskResult taskFrom(const ordered_json& json)
{
    TaskResult task{.title = json.at("title")};
    for (const auto& row : json.at("rows")) {
        auto& added = task.rows.emplace_back(Row{.name = row.at("name"), .role = row.at("role")});
        for (const auto& condition : allConditions) {
            added.under(condition) = cellFrom(row.at("conditions").at(nameOf(condition)));
        }
    }
    for (const auto& budget : json.at("budgets")) {
        task.budgets.push_back({budget.at("text"), budget.at("limit"), budget.at("value")});
    }
    return task;
}

} // namespace

std::string toJson(const Results& results)
{
    auto tasks = ordered_json::array();
    std::ranges::transform(results.tasks, std::back_inserter(tasks),
                           [](const TaskResult& task) { return jsonOf(task); });
    const ordered_json json = {{"cores", results.cores},
                               {"loadBefore", results.loadBefore},
                               {"runs", results.runs},
                               {"tasks", std::move(tasks)}};
    return json.dump(1) + "\n";
}

Results fromJson(std::string_view text)
{
    const auto json = ordered_json::parse(text);
    Results results{.cores = json.at("cores"), .loadBefore = json.at("loadBefore"), .runs = json.at("runs")};
    std::ranges::transform(json.at("tasks"), std::back_inserter(results.tasks), taskFrom);
    return results;
}

} // namespace quorvel::bench
