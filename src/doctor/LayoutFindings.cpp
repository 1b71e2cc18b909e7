#include "doctor/LayoutFindings.h"

#include <algorithm>
#include <expected>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "layouts/LayoutsDecoding.h"
#include "layouts/LayoutsManager.h"
#include "platform/Bundle.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

namespace {

std::expected<LayoutsModel, std::string> catalogue(const Bundle& bundle)
{
    const auto json = bundle.resource("layouts", "json");
    if (!json) {
        return std::unexpected(json.error());
    }
    if (!*json) {
        return std::unexpected("there is no file layouts.json");
    }
    return decodeLayoutsModel(**json);
}

Finding problem(std::string text, std::string advice)
{
    return {
        .id = "layouts.catalogue", .verdict = Verdict::problem, .text = std::move(text), .advice = std::move(advice)};
}

void addCatalogue(std::vector<Finding>& findings, const LayoutsModel& model)
{
    constexpr auto reinstall = "Install Quorvel anew, or mend the file that $QUORVEL_RESOURCES leads to.";
    std::set<std::string_view> ids;
    for (const auto& layout : model.layouts) {
        if (!ids.insert(layout.id).second) {
            findings.push_back(
                problem(fmt::format("The catalogue has the layout \"{}\" twice.", layout.id), reinstall));
        }
        if (layout.windows.size() > LayoutsManager::largestFrameCount) {
            findings.push_back(
                {.id = "layouts.frames",
                 .verdict = Verdict::notice,
                 .text = fmt::format("The layout \"{}\" is left out: it has {} frames, more than {}.", layout.id,
                                     layout.windows.size(), LayoutsManager::largestFrameCount)});
        }
    }
    if (findings.empty() && model.layouts.empty()) {
        findings.push_back(problem("The catalogue has no layouts.", reinstall));
    } else if (findings.empty()) {
        findings.push_back({.id = "layouts.catalogue",
                            .text = fmt::format("The catalogue has {} layouts.", model.layouts.size()),
                            .details = {{"count", {static_cast<std::int64_t>(model.layouts.size())}}}});
    }
}

bool has(const LayoutsModel& model, std::string_view id)
{
    return std::ranges::find(model.layouts, id, &LayoutModel::id) != model.layouts.end();
}

void addUnknown(std::vector<Finding>& findings, std::string_view id, std::string_view use)
{
    findings.push_back({.id = "layouts.unknown",
                        .verdict = Verdict::notice,
                        .text = fmt::format("The layout \"{}\", {}, is not in the catalogue.", id, use),
                        .advice = "It is passed over.",
                        .details = {{"layout", {std::string(id)}}}});
}

void addSelection(std::vector<Finding>& findings, const Settings& settings, const LayoutsModel& model)
{
    const auto selected = settings.stringArray(settingsKeys::selectedLayoutIDs).value_or(std::vector<std::string>{});
    for (const auto& id : selected) {
        if (!has(model, id)) {
            addUnknown(findings, id, "which is selected");
        }
    }
    const auto digits =
        settings.stringDictionary(settingsKeys::layoutShortcuts).value_or(std::map<std::string, std::string>{});
    for (const auto& [id, digit] : digits) {
        if (!has(model, id)) {
            addUnknown(findings, id, fmt::format("which the digit {} goes to", digit));
        }
    }
    const bool isEmpty =
        !selected.empty() && std::ranges::none_of(selected, [&](const auto& id) { return has(model, id); });
    if (isEmpty) {
        findings.push_back(
            {.id = "layouts.selection",
             .verdict = Verdict::problem,
             .text = "None of the selected layouts is in the catalogue, so that the overlay stays empty.",
             .advice = "Choose layouts in the preferences."});
    }
}

} // namespace

std::vector<Finding> layoutFindings(const Settings& settings, const Bundle& bundle)
{
    const auto model = catalogue(bundle);
    if (!model) {
        return {problem(fmt::format("The catalogue of layouts cannot be read: {}.", model.error()),
                        "Install Quorvel anew, or mend the file that $QUORVEL_RESOURCES leads to.")};
    }
    std::vector<Finding> findings;
    addCatalogue(findings, *model);
    addSelection(findings, settings, *model);
    return findings;
}

} // namespace quorvel
