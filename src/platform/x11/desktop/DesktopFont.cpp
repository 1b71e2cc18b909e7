#include "platform/x11/desktop/DesktopFont.h"

#include <fmt/format.h>

#include "platform/x11/desktop/SettingsDaemon.h"
#include "platform/x11/painting/CairoHandles.h"

namespace quorvel::x11 {

namespace {

constexpr const char* usualFamilies = "Inter, Cantarell, Noto Sans, Ubuntu, sans-serif";

} // namespace

std::string desktopFontFamilies(Connection& connection)
{
    // As in "Cantarell 11"; what the toolkit of most desktops uses.
    if (const auto setting = SettingsDaemon(connection).text("Gtk/FontName")) {
        const PangoHandle<PangoFontDescription> description(pango_font_description_from_string(setting->c_str()));
        if (const char* const family = pango_font_description_get_family(description.get())) {
            return fmt::format("{}, {}", family, usualFamilies);
        }
    }
    return usualFamilies;
}

} // namespace quorvel::x11
