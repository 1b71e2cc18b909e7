#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel::x11 {

enum class ColorScheme { light, dark };

// How windows should look to fit into the desktop.
struct DesktopStyle {
    ColorScheme scheme = ColorScheme::light;
    std::string font; // a name and a size, as in "Cantarell 11"; empty where the desktop names none

    bool operator==(const DesktopStyle&) const = default;
};

// The values of the desktop portal's setting "color-scheme".
enum class PortalPreference : std::uint32_t { none = 0, dark = 1, light = 2 };

// What the person prefers as the portal tells, if it has an opinion; else as the name of the desktop's theme lets
// guess.
ColorScheme colorScheme(std::optional<PortalPreference> preference, std::optional<std::string_view> themeName);

} // namespace quorvel::x11
