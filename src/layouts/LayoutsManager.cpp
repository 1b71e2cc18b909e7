#include "layouts/LayoutsManager.h"

#include <algorithm>
#include <expected>
#include <iterator>
#include <map>
#include <unordered_map>
#include <utility>

#include <fmt/format.h>

#include "base/FatalError.h"
#include "layouts/LayoutFrames.h"
#include "layouts/LayoutsDecoding.h"
#include "platform/Bundle.h"
#include "platform/Log.h"

namespace quorvel {

namespace {

using DigitsByID = std::map<std::string, std::string>;

// In the order in which they are offered, with the digits from 1.
constexpr std::string_view defaultIDs[]{"one_full_screen", "centered",           "two_side_by_side",
                                        "two_stacked",     "three_side_by_side", "four_tiled"};

DigitsByID layoutShortcuts(const Settings& settings)
{
    return settings.stringDictionary(settingsKeys::layoutShortcuts).value_or(DigitsByID{});
}

std::unordered_map<std::string_view, const LayoutModel*> layoutsByID(const LayoutsModel& model)
{
    std::unordered_map<std::string_view, const LayoutModel*> result;
    result.reserve(model.layouts.size());
    for (const auto& layout : model.layouts) {
        if (!result.emplace(layout.id, &layout).second) {
            fatalError(fmt::format("Duplicate layout id in the catalogue: {}", layout.id));
        }
    }
    return result;
}

} // namespace

LayoutsManager::LayoutsManager(const Bundle& bundle, Settings settings, Log& log)
    : bundle(bundle), settings(settings), log(log)
{}

void LayoutsManager::loadLayouts()
{
    const auto json = bundle.resource("layouts", "json");
    if (json && !*json) {
        return;
    }
    using Decoded = std::expected<LayoutsModel, std::string>;
    auto model = json ? decodeLayoutsModel(**json) : Decoded(std::unexpect, json.error());
    if (!model) {
        log.line("Error reading layouts JSON asset: " + model.error());
        return;
    }
    std::erase_if(model->layouts, [this](const LayoutModel& layout) {
        if (layout.windows.size() <= largestFrameCount) {
            return false;
        }
        log.line(fmt::format("Layout left out for its {} frames, more than {}: {}", layout.windows.size(),
                             largestFrameCount, layout.id));
        return true;
    });
    layoutsModel = *std::move(model);
}

void LayoutsManager::seedDefaultLayoutsIfNeeded()
{
    if (settings.boolean(settingsKeys::didSeedDefaultLayouts)) {
        return;
    }
    if (settings.stringArray(selectedDefaultsKey).value_or(std::vector<std::string>{}).empty()) {
        const std::vector<std::string> ids(std::begin(defaultIDs), std::end(defaultIDs));
        DigitsByID digits;
        for (const auto& id : ids) {
            digits.emplace(id, std::to_string(digits.size() + 1));
        }
        settings.setStringArray(selectedDefaultsKey, ids);
        settings.setStringDictionary(settingsKeys::layoutShortcuts, digits);
    }
    settings.setBoolean(settingsKeys::didSeedDefaultLayouts, true);
}

std::vector<LayoutModel> LayoutsManager::layouts() const
{
    if (!layoutsModel) {
        return {};
    }
    const auto selectedIDs = settings.stringArray(selectedDefaultsKey);
    if (!selectedIDs || selectedIDs->empty()) {
        return layoutsModel->layouts;
    }
    const auto byID = layoutsByID(*layoutsModel);
    std::vector<LayoutModel> selected;
    selected.reserve(selectedIDs->size());
    for (const auto& id : *selectedIDs) {
        if (const auto found = byID.find(id); found != byID.end()) {
            selected.push_back(*found->second);
        }
    }
    return selected;
}

std::optional<LayoutModel> LayoutsManager::selectedLayout() const
{
    auto all = layouts();
    if (index < 0 || index >= std::ssize(all)) {
        return std::nullopt;
    }
    return std::move(all[static_cast<std::size_t>(index)]);
}

std::vector<LayoutSummary> LayoutsManager::allLayoutSummaries() const
{
    std::vector<LayoutSummary> summaries;
    if (layoutsModel) {
        std::ranges::transform(layoutsModel->layouts, std::back_inserter(summaries),
                               [](const LayoutModel& layout) { return LayoutSummary{layout.id, layout.name}; });
    }
    return summaries;
}

void LayoutsManager::selectNextLayout()
{
    selectLayoutAtOffset(1);
}

void LayoutsManager::selectPreviousLayout()
{
    selectLayoutAtOffset(-1);
}

void LayoutsManager::selectLayoutAtOffset(std::ptrdiff_t offset)
{
    const auto count = std::ssize(layouts());
    index = count == 0 ? 0 : (index + offset + count) % count;
}

bool LayoutsManager::selectLayoutWithID(std::string_view id)
{
    const auto all = layouts();
    const auto found = std::ranges::find(all, id, &LayoutModel::id);
    if (found == all.end()) {
        return false;
    }
    index = std::distance(all.begin(), found);
    return true;
}

std::optional<std::string> LayoutsManager::layoutIDForDigit(std::string_view digit) const
{
    const auto shortcuts = layoutShortcuts(settings);
    const auto found = std::ranges::find(shortcuts, digit, &DigitsByID::value_type::second);
    return found == shortcuts.end() ? std::nullopt : std::optional(found->first);
}

std::vector<LayoutShortcutEntry> LayoutsManager::legendEntries() const
{
    const auto shortcuts = layoutShortcuts(settings);
    const auto all = layouts();
    const auto* current = index >= 0 && index < std::ssize(all) ? &all[static_cast<std::size_t>(index)] : nullptr;
    std::vector<LayoutShortcutEntry> entries;
    for (const auto& layout : all) {
        if (const auto found = shortcuts.find(layout.id); found != shortcuts.end()) {
            const auto place = std::ranges::upper_bound(entries, found->second, {}, &LayoutShortcutEntry::digit);
            entries.insert(place, {found->second, layout.name, current != nullptr && current->id == layout.id});
        }
    }
    return entries;
}

std::vector<UnitRect> LayoutsManager::normalizedFramesForLayoutID(std::string_view id) const
{
    if (!layoutsModel) {
        return {};
    }
    const auto found = std::ranges::find(layoutsModel->layouts, id, &LayoutModel::id);
    if (found == layoutsModel->layouts.end()) {
        return {};
    }
    std::vector<UnitRect> frames;
    for (const auto& window : found->windows) {
        if (const auto frame = frameFromRecord(windowRecord(window))) {
            frames.push_back(*frame);
        }
    }
    return normalizedFrames(std::move(frames));
}

} // namespace quorvel
