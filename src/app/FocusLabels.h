#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "app/FocusCandidates.h"
#include "base/Keys.h"

namespace quorvel {

class KeyboardLayout;
class Settings;

// The keys of the focus switcher besides letters and Escape; -1 for one that no key has.
struct FocusToggleKeys {
    KeyCode minimized = 0;
    KeyCode allWindows = 0;
};

FocusToggleKeys focusToggleKeys(const Settings& settings);

// The letters A to Z, each a text of its own, without those that the two keys type in the current keyboard layout.
std::vector<std::string> focusAlphabet(KeyboardLayout& keyboardLayout, const FocusToggleKeys& toggles);

// Who can be chosen by which letter. One letter after the other goes to the visible windows and then on to the
// minimized ones, until there are no more.
struct FocusLabels {
    std::map<std::string, FocusWindowInfo> visibleByLabel;
    std::map<std::string, MinimizedWindowInfo> minimizedByLabel;

    static FocusLabels assign(const FocusCandidates& candidates, const std::vector<std::string>& alphabet);
};

} // namespace quorvel
