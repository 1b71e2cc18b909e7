#include "doctor/KeyboardFindings.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "app/LabelAlphabet.h"
#include "base/KeyboardLayoutProfile.h"
#include "base/Utf8.h"
#include "platform/DesktopProbe.h"
#include "platform/KeyboardLayout.h"
#include "settings/Settings.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

namespace {

// The letters of labels, each with the keys that type it.
using Letters = std::map<std::string, std::vector<KeyCode>>;

Letters typedLetters(KeyboardLayout& keyboardLayout)
{
    Letters letters;
    for (const char letter : labelAlphabet) {
        letters.emplace(std::string(1, letter), std::vector<KeyCode>());
    }
    for (const auto& [character, keyCode] : characterTableFor(KeyboardLayoutProfile::qwerty)) {
        const auto typed = letters.find(upperCased(keyboardLayout.characters(keyCode)));
        if (typed != letters.end()) {
            typed->second.push_back(keyCode);
        }
    }
    return letters;
}

PropertyArray texts(const std::vector<std::string>& values)
{
    PropertyArray array;
    for (const auto& value : values) {
        array.push_back({value});
    }
    return array;
}

Finding layoutFinding(const KeyboardFacts& facts)
{
    Finding finding{.id = "keyboard.layout", .details = {{"layouts", {texts(facts.layouts)}}}};
    if (facts.current >= facts.layouts.size()) {
        finding.text = "The keyboard layout has no name.";
        return finding;
    }
    const auto& current = facts.layouts[facts.current];
    finding.details.insert_or_assign("current", PropertyValue{current});
    finding.text = fmt::format("The keyboard layout is \"{}\".", current);
    if (facts.layouts.size() > 1) {
        finding.text = fmt::format("The keyboard layout is \"{}\" of: {}.", current, fmt::join(facts.layouts, ", "));
    }
    return finding;
}

Finding lettersFinding(const Letters& letters)
{
    std::vector<std::string> missing;
    for (const auto& [letter, keyCodes] : letters) {
        if (keyCodes.empty()) {
            missing.push_back(letter);
        }
    }
    Finding finding{.id = "keyboard.letters", .details = {{"missing", {texts(missing)}}}};
    if (missing.empty()) {
        finding.text = "Every letter of a label has its key.";
        return finding;
    }
    const bool isNone = missing.size() == letters.size();
    finding.verdict = Verdict::problem;
    finding.text = isNone ? "No key types a letter from A to Z, so that no label can be chosen in this layout."
                          : fmt::format("No key types {}, so that labels with it cannot be chosen in this layout.",
                                        fmt::join(missing, ", "));
    finding.advice = "Switch to a layout with Latin letters while you choose.";
    return finding;
}

// The letters that the profile takes for those of other keys.
std::vector<std::string> misnamed(KeyboardLayoutProfile profile, const Letters& letters)
{
    std::vector<std::string> result;
    const auto& table = characterTableFor(profile);
    for (const auto& [letter, keyCodes] : letters) {
        const auto named = table.find(letter);
        const bool isElsewhere =
            named != table.end() && !keyCodes.empty() && std::ranges::find(keyCodes, named->second) == keyCodes.end();
        if (isElsewhere) {
            result.push_back(letter);
        }
    }
    return result;
}

KeyboardLayoutProfile bestProfile(const Letters& letters)
{
    return *std::ranges::min_element(allKeyboardLayoutProfiles, {},
                                     [&](KeyboardLayoutProfile profile) { return misnamed(profile, letters).size(); });
}

Finding profileFinding(KeyboardLayoutProfile profile, const Letters& letters)
{
    const auto elsewhere = misnamed(profile, letters);
    Finding finding{.id = "keyboard.profile", .details = {{"profile", {std::string(rawValue(profile))}}}};
    if (elsewhere.empty()) {
        finding.text = fmt::format("The preferences name keys as on a {} keyboard, which this is.", rawValue(profile));
        return finding;
    }
    finding.verdict = Verdict::notice;
    finding.text = fmt::format("The preferences name keys as on a {} keyboard; on this one other keys type {}.",
                               rawValue(profile), fmt::join(elsewhere, ", "));
    const auto best = bestProfile(letters);
    finding.advice = best != profile ? fmt::format("Choose {} in the preferences.", rawValue(best))
                                     : "Record shortcuts by pressing them; names apart, they do what was pressed.";
    return finding;
}

} // namespace

DiagnosisSection keyboardSection(const Settings& settings, const KeyboardFacts& facts, KeyboardLayout& keyboardLayout)
{
    const auto letters = typedLetters(keyboardLayout);
    return {"keyboard",
            "Keyboard",
            {layoutFinding(facts), lettersFinding(letters), profileFinding(keyboardLayoutProfile(settings), letters)}};
}

} // namespace quorvel
