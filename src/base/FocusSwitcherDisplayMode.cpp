#include "base/FocusSwitcherDisplayMode.h"

#include "base/RawValues.h"

namespace quorvel {

namespace {

constexpr RawValues<FocusSwitcherDisplayMode, 2> rawValues{{{
    {FocusSwitcherDisplayMode::framesAndLabels, "frames"},
    {FocusSwitcherDisplayMode::windowList, "list"},
}}};

} // namespace

std::string_view rawValue(FocusSwitcherDisplayMode mode)
{
    return rawValues.textOf(mode);
}

std::string_view title(FocusSwitcherDisplayMode mode)
{
    return mode == FocusSwitcherDisplayMode::windowList ? "Show window list" : "Show frames and labels";
}

std::optional<FocusSwitcherDisplayMode> focusSwitcherDisplayModeFromRawValue(std::string_view text)
{
    return rawValues.caseOf(text);
}

} // namespace quorvel
