#include "support/SettingsDaemon.h"

#include <cstdint>

namespace quorvel::xtest {
namespace {

void append(std::string& bytes, std::uint32_t value, unsigned size)
{
    for (unsigned index = 0; index < size; ++index) {
        bytes.push_back(static_cast<char>(value >> (8 * index)));
    }
}

void appendPadded(std::string& bytes, const std::string& text)
{
    bytes += text;
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
}

// The least significant byte first, as the zero at the beginning says.
std::string encoded(const SettingsDaemon::Settings& settings)
{
    std::string bytes(8, '\0');
    append(bytes, static_cast<std::uint32_t>(settings.size()), 4);
    for (const auto& [name, value] : settings) {
        constexpr std::uint32_t text = 1;
        append(bytes, text, 2);
        append(bytes, static_cast<std::uint32_t>(name.size()), 2);
        appendPadded(bytes, name);
        append(bytes, 0, 4);
        append(bytes, static_cast<std::uint32_t>(value.size()), 4);
        appendPadded(bytes, value);
    }
    return bytes;
}

} // namespace

SettingsDaemon::SettingsDaemon(XClient& client, const Settings& settings)
    : client(client), window(xcb_generate_id(client.connection()))
{
    auto* const link = client.connection();
    xcb_create_window(link, XCB_COPY_FROM_PARENT, window, client.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    publish(settings);
    const auto selection = client.atom("_XSETTINGS_S0");
    xcb_set_selection_owner(link, window, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t announcement{};
    announcement.response_type = XCB_CLIENT_MESSAGE;
    announcement.format = 32;
    announcement.window = client.root();
    announcement.type = client.atom("MANAGER");
    announcement.data.data32[1] = selection;
    announcement.data.data32[2] = window;
    xcb_send_event(link, 0, client.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&announcement));
    client.sync();
}

SettingsDaemon::~SettingsDaemon()
{
    xcb_destroy_window(client.connection(), window);
    xcb_flush(client.connection());
}

void SettingsDaemon::publish(const Settings& settings)
{
    const auto bytes = encoded(settings);
    const auto name = client.atom("_XSETTINGS_SETTINGS");
    xcb_change_property(client.connection(), XCB_PROP_MODE_REPLACE, window, name, name, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.data());
    client.sync();
}

} // namespace quorvel::xtest
