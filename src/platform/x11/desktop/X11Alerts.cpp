#include "platform/x11/desktop/X11Alerts.h"

#include <string_view>

#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/desktop/X11Bundle.h"

namespace quorvel::x11 {

namespace {

constexpr std::string_view applicationIcon = "ColorLogoTransparent";
constexpr int iconSize = 128; // shown at 64 points, also where a point is two pixels

} // namespace

std::size_t X11Alerts::runModal(const Alert& alert)
{
    const std::string_view icon = alert.iconName.empty() ? applicationIcon : std::string_view(alert.iconName);
    return toolkit.runAlert(alert, bundle.imageFile(icon, iconSize));
}

} // namespace quorvel::x11
