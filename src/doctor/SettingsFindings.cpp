#include "doctor/SettingsFindings.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "doctor/LayoutFindings.h"
#include "doctor/SettingsSnapshot.h"
#include "doctor/StoredSettings.h"
#include "settings/PropertyConversions.h"
#include "settings/SettingTypes.h"
#include "settings/Settings.h"
#include "settings/SettingsTable.h"
#include "settings/ThemeCoding.h"
#include "settings/ThemeKind.h"

namespace quorvel {

namespace {

Finding fileFinding(const StoredSettings& stored)
{
    Finding finding{.id = "settings.file", .details = {{"place", {stored.place}}}};
    switch (stored.state) {
    case StoredSettings::State::absent:
        finding.text = fmt::format("No settings are stored in {}; the usual ones hold.", stored.place);
        break;
    case StoredSettings::State::readable:
        finding.text = fmt::format("Settings are read from {}.", stored.place);
        break;
    case StoredSettings::State::damaged:
        finding.verdict = Verdict::problem;
        finding.text = fmt::format("The settings in {} are damaged: {}.", stored.place, stored.problem);
        finding.advice = "Mend or import them. Quorvel would move them aside and go on with the usual ones.";
        break;
    case StoredSettings::State::unreadable:
        finding.verdict = Verdict::problem;
        finding.text = fmt::format("The settings in {} cannot be read: {}.", stored.place, stored.problem);
        finding.advice = "Make them readable for yourself.";
        break;
    }
    return finding;
}

void addAccess(std::vector<Finding>& findings, const StoredSettings& stored)
{
    if (!stored.isWritable) {
        findings.push_back({.id = "settings.writable",
                            .verdict = Verdict::problem,
                            .text = fmt::format("Changes cannot be written to {}.", stored.place),
                            .advice = "Make its folder writable for yourself, or free some space."});
    }
    if (!stored.isPrivate) {
        findings.push_back({.id = "settings.private",
                            .verdict = Verdict::notice,
                            .text = fmt::format("Others may read {}.", stored.place),
                            .advice = "The next change in the preferences makes it yours alone."});
    }
}

// The program ends when it meets such a number.
bool isOutOfRange(const PropertyValue& value)
{
    const auto number = integerFrom(value);
    return number < 0 || number > std::numeric_limits<std::uint32_t>::max();
}

std::optional<Finding> valueFinding(const SettingsEntry& entry)
{
    const auto& [key, value] = entry;
    const auto* const definition = findSettingDefinition(key);
    if (definition == nullptr) {
        return std::nullopt; // files carry what other programs put there
    }
    const auto mismatch = value ? typeMismatch(*value, definition->type) : "what no setting can hold";
    if (mismatch) {
        return Finding{.id = "settings.type",
                       .verdict = Verdict::notice,
                       .text = fmt::format("Setting \"{}\" holds {}.", key, *mismatch),
                       .advice = "It is taken for what comes closest, or for unset. The preferences set it anew.",
                       .details = {{"key", {key}}}};
    }
    if (definition->type == SettingType::integer && isOutOfRange(*value)) {
        return Finding{.id = "settings.range",
                       .verdict = Verdict::problem,
                       .text = fmt::format("Setting \"{}\" holds {}, which is out of range.", key, integerFrom(*value)),
                       .advice = "Remove it from the file; Quorvel ends where it meets it.",
                       .details = {{"key", {key}}}};
    }
    return std::nullopt;
}

template <class Record>
void addThemes(std::vector<Finding>& findings, const Settings& settings)
{
    const auto key = ThemeKind<Record>::storageKey;
    const auto document = settings.data(key);
    if (!document) {
        return;
    }
    const std::string_view json(reinterpret_cast<const char*>(document->data()), document->size());
    if (const auto themes = decodeThemes<Record>(json); !themes) {
        findings.push_back(
            {.id = "settings.themes",
             .verdict = Verdict::notice,
             .text = fmt::format("The saved {} cannot be read: {}.", ThemeKind<Record>::plural, themes.error()),
             .advice = "They count as none; the next theme that is saved replaces them.",
             .details = {{"key", {std::string(key)}}}});
    }
}

} // namespace

DiagnosisSection settingsSection(const StoredSettings& stored, const Bundle& bundle)
{
    DiagnosisSection section{"settings", "Settings and layouts", {fileFinding(stored)}};
    addAccess(section.findings, stored);
    for (const auto& entry : stored.entries) {
        if (auto finding = valueFinding(entry)) {
            section.findings.push_back(std::move(*finding));
        }
    }
    SettingsSnapshot snapshot(stored.entries);
    const Settings settings(snapshot);
    addThemes<Theme>(section.findings, settings);
    addThemes<SwitcherTheme>(section.findings, settings);
    addThemes<MoveResizeTheme>(section.findings, settings);
    std::ranges::move(layoutFindings(settings, bundle), std::back_inserter(section.findings));
    return section;
}

} // namespace quorvel
