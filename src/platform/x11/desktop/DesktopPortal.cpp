#include "platform/x11/desktop/DesktopPortal.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorvel::x11 {

namespace {

constexpr const char* busName = "org.freedesktop.portal.Desktop";
constexpr const char* objectPath = "/org/freedesktop/portal/desktop";
constexpr const char* interfaceName = "org.freedesktop.portal.Settings";
constexpr const char* settingsNamespace = "org.freedesktop.appearance";
constexpr const char* settingName = "color-scheme";

struct FreeVariant {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using Variant = std::unique_ptr<GVariant, FreeVariant>;

// Portals wrap the value into one or two variants, depending on their age.
Variant unwrapped(Variant value)
{
    while (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_VARIANT)) {
        value.reset(g_variant_get_variant(value.get()));
    }
    return value;
}

struct Handler {
    std::function<void()> changed;
};

void settingChanged(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/, const char* /*interface*/,
                    const char* /*signal*/, GVariant* parameters, gpointer data)
{
    if (!g_variant_is_of_type(parameters, G_VARIANT_TYPE("(ssv)"))) {
        return;
    }
    const char* changedName = nullptr;
    g_variant_get_child(parameters, 1, "&s", &changedName);
    if (std::string_view(changedName) == settingName) {
        static_cast<Handler*>(data)->changed();
    }
}

} // namespace

std::string DesktopPortal::sessionBus()
{
    if (const char* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address != nullptr && *address != '\0') {
        return address;
    }
    const auto socket = std::filesystem::path(g_get_user_runtime_dir()) / "bus";
    std::error_code error;
    return std::filesystem::exists(socket, error) ? "unix:path=" + socket.string() : std::string();
}

DesktopPortal::DesktopPortal(const std::string& busAddress)
{
    if (!busAddress.empty()) {
        constexpr auto asClient = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                    G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        bus.reset(g_dbus_connection_new_for_address_sync(busAddress.c_str(), asClient, nullptr, nullptr, nullptr));
    }
}

DesktopPortal::~DesktopPortal() = default;

std::optional<PortalPreference> DesktopPortal::preference() const
{
    constexpr int timeout = 300; // milliseconds
    if (!bus) {
        return std::nullopt;
    }
    const Variant reply(g_dbus_connection_call_sync(
        bus.get(), busName, objectPath, interfaceName, "Read", g_variant_new("(ss)", settingsNamespace, settingName),
        G_VARIANT_TYPE("(v)"), G_DBUS_CALL_FLAGS_NONE, timeout, nullptr, nullptr));
    if (!reply) {
        return std::nullopt;
    }
    const auto value = unwrapped(Variant(g_variant_get_child_value(reply.get(), 0)));
    if (!g_variant_is_of_type(value.get(), G_VARIANT_TYPE_UINT32)) {
        return std::nullopt;
    }
    return static_cast<PortalPreference>(g_variant_get_uint32(value.get()));
}

Subscription DesktopPortal::observe(std::function<void()> changed)
{
    if (!bus) {
        return {};
    }
    const guint id = g_dbus_connection_signal_subscribe(
        bus.get(), busName, interfaceName, "SettingChanged", objectPath, settingsNamespace, G_DBUS_SIGNAL_FLAGS_NONE,
        &settingChanged, new Handler{std::move(changed)}, [](gpointer data) { delete static_cast<Handler*>(data); });
    return Subscription([this, id] { g_dbus_connection_signal_unsubscribe(bus.get(), id); });
}

} // namespace quorvel::x11
