#include "platform/x11/desktop/X11SystemColors.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

#include <glib.h>

#include "platform/x11/ConfigurationDirectory.h"
#include "platform/x11/GlibHandles.h"

namespace quorvel::x11 {

namespace {

// A colour as "53,132,228", perhaps with an alpha behind it.
std::optional<Color> colorOf(GKeyFile* file, const char* group, const char* key)
{
    g_key_file_set_list_separator(file, ',');
    gsize count = 0;
    const std::unique_ptr<gint, decltype(&g_free)> numbers(
        g_key_file_get_integer_list(file, group, key, &count, nullptr), &g_free);
    const std::span components(numbers.get(), count);
    const bool isColor =
        count >= 3 && std::ranges::all_of(components, [](int component) { return component >= 0 && component <= 255; });
    if (!isColor) {
        return std::nullopt;
    }
    return Color::bytes(components[0], components[1], components[2]);
}

std::optional<Color> readAccent(const std::filesystem::path& path)
{
    const GlibKeyFile file(g_key_file_new());
    if (g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE) {
        return std::nullopt;
    }
    if (const auto chosen = colorOf(file.get(), "General", "AccentColor")) {
        return chosen;
    }
    return colorOf(file.get(), "Colors:Selection", "BackgroundNormal");
}

} // namespace

std::filesystem::path X11SystemColors::plasmaSettingsFile()
{
    return configurationDirectory() / "kdeglobals";
}

Color X11SystemColors::accent() const
{
    std::error_code error;
    const auto changedAt = std::filesystem::last_write_time(plasmaSettings, error);
    if (error) {
        return blue();
    }
    if (std::exchange(readAt, changedAt) != changedAt) {
        knownAccent = readAccent(plasmaSettings).value_or(blue());
    }
    return knownAccent;
}

} // namespace quorvel::x11
