#include "platform/x11/desktop/DesktopFont.h"

#include <cstdint>
#include <optional>
#include <span>

#include <fmt/format.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Properties.h"
#include "platform/x11/desktop/XSettings.h"
#include "platform/x11/painting/CairoHandles.h"

namespace quorvel::x11 {

namespace {

constexpr const char* usualFamilies = "Inter, Cantarell, Noto Sans, Ubuntu, sans-serif";

// As in "Cantarell 11"; what the toolkit of most desktops uses.
std::optional<std::string> fontSetting(Connection& connection)
{
    const auto selection = connection.atom(fmt::format("_XSETTINGS_S{}", connection.screenNumber()));
    PendingReply<xcb_get_selection_owner_reply> pendingOwner(connection.xcb(),
                                                             xcb_get_selection_owner(connection.xcb(), selection));
    const auto owner = pendingOwner.take();
    if (!owner || owner->owner == XCB_WINDOW_NONE) {
        return std::nullopt;
    }
    const auto property =
        requestProperty(connection.xcb(), owner->owner, connection.atom("_XSETTINGS_SETTINGS")).take();
    if (!property || property->format != 8) {
        return std::nullopt;
    }
    const std::span data(static_cast<const std::uint8_t*>(xcb_get_property_value(property.get())),
                         static_cast<std::size_t>(xcb_get_property_value_length(property.get())));
    return textSetting(data, "Gtk/FontName");
}

} // namespace

std::string desktopFontFamilies(Connection& connection)
{
    if (const auto setting = fontSetting(connection)) {
        const PangoHandle<PangoFontDescription> description(pango_font_description_from_string(setting->c_str()));
        if (const char* const family = pango_font_description_get_family(description.get())) {
            return fmt::format("{}, {}", family, usualFamilies);
        }
    }
    return usualFamilies;
}

} // namespace quorvel::x11
