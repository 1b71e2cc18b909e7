#include "app/FocusLabels.h"

#include "app/LabelAlphabet.h"
#include "base/Utf8.h"
#include "platform/KeyboardLayout.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

FocusToggleKeys focusToggleKeys(const Settings& settings)
{
    return {
        .minimized = modeKeyCode(settings, settingsKeys::fsToggleMinimizedKeyCode),
        .allWindows = modeKeyCode(settings, settingsKeys::fsToggleAllWindowsKeyCode),
    };
}

std::vector<std::string> focusAlphabet(KeyboardLayout& keyboardLayout, const FocusToggleKeys& toggles)
{
    std::vector<std::string> alphabet;
    for (const char letter : labelAlphabet) {
        alphabet.emplace_back(1, letter);
    }
    for (const auto keyCode : {toggles.minimized, toggles.allWindows}) {
        std::erase(alphabet, upperCased(keyboardLayout.characters(keyCode)));
    }
    return alphabet;
}

FocusLabels FocusLabels::assign(const FocusCandidates& candidates, const std::vector<std::string>& alphabet)
{
    FocusLabels labels;
    auto letter = alphabet.begin();
    for (auto each = candidates.visible.begin(); each != candidates.visible.end() && letter != alphabet.end(); ++each) {
        labels.visibleByLabel.emplace(*letter++, *each);
    }
    for (auto each = candidates.minimized.begin(); each != candidates.minimized.end() && letter != alphabet.end();
         ++each) {
        labels.minimizedByLabel.emplace(*letter++, *each);
    }
    return labels;
}

} // namespace quorvel
