#include "unit/x11/desktop/FakePortal.h"

#include <cstdlib>
#include <future>

#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::x11 {
namespace {

constexpr const char* busName = "org.freedesktop.portal.Desktop";
constexpr const char* objectPath = "/org/freedesktop/portal/desktop";
constexpr const char* interfaceName = "org.freedesktop.portal.Settings";
constexpr const char* settingsNamespace = "org.freedesktop.appearance";

constexpr const char* description = R"(<node><interface name="org.freedesktop.portal.Settings">
  <method name="Read">
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
  </method>
</interface></node>)";

std::string readLine(int descriptor)
{
    std::string line;
    char character = 0;
    while (read(descriptor, &character, 1) == 1 && character != '\n') {
        line.push_back(character);
    }
    if (line.empty()) {
        throw xtest::HarnessError("the session bus does not start");
    }
    return line;
}

} // namespace

FakePortal::FakePortal()
    : daemon({{"dbus-daemon", "--session", "--nofork", "--print-address"}, {{"PATH", std::getenv("PATH")}}, {}}),
      address(readLine(daemon.output()))
{
    std::promise<void> ready;
    thread = std::thread([this, &ready] {
        g_main_context_push_thread_default(context);
        connect();
        ready.set_value();
        g_main_loop_run(loop);
        g_main_context_pop_thread_default(context);
    });
    ready.get_future().wait();
}

FakePortal::~FakePortal()
{
    g_main_loop_quit(loop);
    thread.join();
    answer(nullptr);
    g_object_unref(bus);
    g_main_loop_unref(loop);
    g_main_context_unref(context);
}

void FakePortal::connect()
{
    constexpr auto asClient = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                                G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    bus = g_dbus_connection_new_for_address_sync(address.c_str(), asClient, nullptr, nullptr, nullptr);
    auto* const node = g_dbus_node_info_new_for_xml(description, nullptr);
    static const GDBusInterfaceVTable table{&handleCall, nullptr, nullptr, {}};
    g_dbus_connection_register_object(bus, objectPath, node->interfaces[0], &table, this, nullptr, nullptr);
    g_dbus_node_info_unref(node);
    constexpr guint noFlags = 0;
    g_variant_unref(g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", busName, noFlags), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
}

void FakePortal::handleCall(GDBusConnection* /*connection*/, const char* /*sender*/, const char* /*path*/,
                            const char* /*interface*/, const char* /*method*/, GVariant* parameters,
                            GDBusMethodInvocation* invocation, gpointer data)
{
    auto* const self = static_cast<FakePortal*>(data);
    const char* wantedNamespace = nullptr;
    const char* name = nullptr;
    g_variant_get(parameters, "(&s&s)", &wantedNamespace, &name);
    const std::lock_guard lock(self->mutex);
    const bool isKnown = std::string(wantedNamespace) == settingsNamespace && std::string(name) == "color-scheme";
    if (self->value == nullptr || !isKnown) {
        g_dbus_method_invocation_return_dbus_error(invocation, "org.freedesktop.portal.Error.NotFound", "not found");
        return;
    }
    g_dbus_method_invocation_return_value(invocation, g_variant_new("(v)", self->value));
}

void FakePortal::answer(GVariant* newValue)
{
    const std::lock_guard lock(mutex);
    if (value != nullptr) {
        g_variant_unref(value);
    }
    value = newValue != nullptr ? g_variant_ref_sink(newValue) : nullptr;
}

void FakePortal::announce(const char* name)
{
    g_dbus_connection_emit_signal(bus, nullptr, objectPath, interfaceName, "SettingChanged",
                                  g_variant_new("(ssv)", settingsNamespace, name, g_variant_new_uint32(1)), nullptr);
}

} // namespace quorvel::x11
