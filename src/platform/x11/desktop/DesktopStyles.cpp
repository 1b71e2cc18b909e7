#include "platform/x11/desktop/DesktopStyles.h"

#include <memory>
#include <utility>

namespace quorvel::x11 {

DesktopStyle DesktopStyles::current()
{
    const auto themeName = sources().daemon.text("Net/ThemeName");
    return {.scheme = colorScheme(sources().portal.preference(), themeName),
            .font = sources().daemon.text("Gtk/FontName").value_or("")};
}

Subscription DesktopStyles::observe(std::function<void()> changed)
{
    auto fromDaemon = std::make_shared<Subscription>(sources().daemon.observe(changed));
    auto fromPortal = std::make_shared<Subscription>(sources().portal.observe(std::move(changed)));
    return Subscription([fromDaemon, fromPortal] {
        fromDaemon->reset();
        fromPortal->reset();
    });
}

DesktopStyles::Sources& DesktopStyles::sources()
{
    if (!opened) {
        opened.emplace(connection);
    }
    return *opened;
}

} // namespace quorvel::x11
