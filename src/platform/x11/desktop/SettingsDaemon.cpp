#include "platform/x11/desktop/SettingsDaemon.h"

#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include <fmt/format.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Properties.h"
#include "platform/x11/Selections.h"
#include "platform/x11/desktop/XSettings.h"

namespace quorvel::x11 {

// A daemon announces itself on the root window, and its settings are a property of a window of its own.
class SettingsDaemon::Observation {
public:
    Observation(const SettingsDaemon& daemon, std::function<void()> changed)
        : daemon(daemon),
          changed(std::move(changed)),
          announcements(daemon.connection.selectEvents(daemon.connection.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY)),
          messages(daemon.connection.addHandler<xcb_client_message_event_t>(
              XCB_CLIENT_MESSAGE, [this](const auto& event) { messageArrived(event); })),
          properties(daemon.connection.addHandler<xcb_property_notify_event_t>(
              XCB_PROPERTY_NOTIFY, [this](const auto& event) { propertyChanged(event); }))
    {
        follow(daemon.owner());
    }

private:
    void follow(xcb_window_t window)
    {
        followed = window;
        changes = window == XCB_WINDOW_NONE ? Subscription()
                                            : daemon.connection.selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    }

    void messageArrived(const xcb_client_message_event_t& event)
    {
        if (event.type == daemon.connection.atoms().manager && event.data.data32[1] == daemon.selection) {
            follow(daemon.owner()); // not whom the message names: anybody can send it
            changed();
        }
    }

    void propertyChanged(const xcb_property_notify_event_t& event)
    {
        if (event.window == followed && event.atom == daemon.settings) {
            changed();
        }
    }

    const SettingsDaemon& daemon;
    std::function<void()> changed;
    Subscription announcements;
    Subscription messages;
    Subscription properties;
    Subscription changes;
    xcb_window_t followed = XCB_WINDOW_NONE;
};

SettingsDaemon::SettingsDaemon(Connection& connection)
    : connection(connection),
      selection(connection.atom(fmt::format("_XSETTINGS_S{}", connection.screenNumber()))),
      settings(connection.atom("_XSETTINGS_SETTINGS"))
{}

std::optional<std::string> SettingsDaemon::text(std::string_view name) const
{
    const auto window = owner();
    if (window == XCB_WINDOW_NONE) {
        return std::nullopt;
    }
    const auto property = requestProperty(connection.xcb(), window, settings).take();
    if (!property || property->format != 8) {
        return std::nullopt;
    }
    const std::span data(static_cast<const std::uint8_t*>(xcb_get_property_value(property.get())),
                         static_cast<std::size_t>(xcb_get_property_value_length(property.get())));
    return textSetting(data, name);
}

Subscription SettingsDaemon::observe(std::function<void()> changed)
{
    auto observation = std::make_shared<Observation>(*this, std::move(changed));
    return Subscription([observation]() mutable { observation.reset(); });
}

xcb_window_t SettingsDaemon::owner() const
{
    return selectionOwner(connection, selection);
}

} // namespace quorvel::x11
