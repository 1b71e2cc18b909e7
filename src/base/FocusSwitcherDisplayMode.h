#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quorvel {

// How the focus switcher shows its labels. Settings keep the raw value.
enum class FocusSwitcherDisplayMode { framesAndLabels, windowList };

inline constexpr std::array allFocusSwitcherDisplayModes{
    FocusSwitcherDisplayMode::framesAndLabels,
    FocusSwitcherDisplayMode::windowList,
};

std::string_view rawValue(FocusSwitcherDisplayMode mode);

// The name that preferences show.
std::string_view title(FocusSwitcherDisplayMode mode);

// Exact and case-sensitive; nothing for any other text.
std::optional<FocusSwitcherDisplayMode> focusSwitcherDisplayModeFromRawValue(std::string_view text);

} // namespace quorvel
