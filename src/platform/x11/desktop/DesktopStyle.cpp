#include "platform/x11/desktop/DesktopStyle.h"

#include <algorithm>
#include <ranges>

namespace quorvel::x11 {

namespace {

bool isDark(std::string_view themeName)
{
    constexpr std::string_view mark = "dark";
    const auto areEqual = [](char one, char lower) {
        return (one >= 'A' && one <= 'Z' ? one - 'A' + 'a' : one) == lower;
    };
    return !std::ranges::search(themeName, mark, areEqual).empty();
}

} // namespace

ColorScheme colorScheme(std::optional<PortalPreference> preference, std::optional<std::string_view> themeName)
{
    if (preference == PortalPreference::dark || preference == PortalPreference::light) {
        return preference == PortalPreference::dark ? ColorScheme::dark : ColorScheme::light;
    }
    return themeName && isDark(*themeName) ? ColorScheme::dark : ColorScheme::light;
}

} // namespace quorvel::x11
