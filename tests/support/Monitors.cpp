#include "support/Monitors.h"

#include <array>
#include <vector>

#include <fmt/format.h>
#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

constexpr double millimetresPerPixel = 0.264583; // 96 dots per inch

std::vector<xcb_randr_output_t> outputsOf(XClient& client)
{
    auto* link = client.connection();
    const XReply<xcb_randr_get_screen_resources_current_reply_t> resources(xcb_randr_get_screen_resources_current_reply(
        link, xcb_randr_get_screen_resources_current(link, client.root()), nullptr));
    const auto* first = xcb_randr_get_screen_resources_current_outputs(resources.get());
    return {first, first + xcb_randr_get_screen_resources_current_outputs_length(resources.get())};
}

// The whole request as it goes over the wire; xcb adds its opcode and length. xcb_randr_set_monitor of libxcb 1.15
// counts one part too many and reads beyond its own memory.
struct SetMonitorRequest {
    xcb_randr_set_monitor_request_t header{};
    xcb_randr_monitor_info_t monitor{};
    xcb_randr_output_t output = XCB_NONE;
};

void setMonitor(XClient& client, SetMonitorRequest request, const std::string& name)
{
    auto* link = client.connection();
    request.header.window = client.root();
    const std::size_t unused = request.monitor.nOutput == 0 ? sizeof(request.output) : 0;
    // xcb uses the two entries before the first one for itself.
    std::array<iovec, 3> parts{};
    parts[2] = {.iov_base = &request, .iov_len = sizeof(request) - unused};
    const xcb_protocol_request_t description{
        .count = 1, .ext = &xcb_randr_id, .opcode = XCB_RANDR_SET_MONITOR, .isvoid = 1};
    const xcb_void_cookie_t cookie{xcb_send_request(link, XCB_REQUEST_CHECKED, &parts[2], &description)};
    const XReply<xcb_generic_error_t> error(xcb_request_check(link, cookie));
    if (error) {
        throw HarnessError(fmt::format("cannot set the monitor {}: X error {}", name, error->error_code));
    }
}

} // namespace

const std::vector<MonitorArrangement>& monitorArrangements()
{
    constexpr auto primary = MonitorRole::primary;
    constexpr auto secondary = MonitorRole::secondary;
    static const std::vector<MonitorArrangement> all = {
        {"One", {{"A", {0, 0, 1920, 1080}, primary}}},
        {"SideBySide", {{"A", {0, 0, 1280, 1024}, primary}, {"B", {1280, 0, 1280, 1024}, secondary}}},
        {"PrimaryOnTheRight", {{"A", {0, 0, 1280, 1024}, secondary}, {"B", {1280, 0, 1920, 1080}, primary}}},
        {"SecondAbove", {{"A", {0, 1080, 1440, 900}, primary}, {"B", {0, 0, 1920, 1080}, secondary}}},
        {"SecondBelow", {{"A", {0, 0, 1440, 900}, primary}, {"B", {0, 900, 1920, 1080}, secondary}}},
        {"SmallerAndLowered", {{"A", {0, 0, 1920, 1080}, primary}, {"B", {1920, 312, 1024, 768}, secondary}}},
        {"LargerAndRaised", {{"A", {0, 540, 1280, 720}, primary}, {"B", {1280, 0, 2560, 1440}, secondary}}},
        {"ThreeInARow",
         {{"A", {0, 0, 1280, 1024}, secondary},
          {"B", {1280, 0, 1280, 1024}, primary},
          {"C", {2560, 0, 1280, 1024}, secondary}}},
        {"LShape",
         {{"A", {0, 1080, 1920, 1080}, primary},
          {"B", {1920, 1080, 1280, 1024}, secondary},
          {"C", {0, 0, 1920, 1080}, secondary}}},
    };
    return all;
}

void Monitors::arrange(const std::vector<Monitor>& monitors)
{
    // An existing monitor cannot be changed, only removed.
    for (const Monitor& monitor : current()) {
        // Refused for the monitors that the outputs themselves make, which vanish once another one takes the output.
        const auto cookie =
            xcb_randr_delete_monitor_checked(client.connection(), client.root(), client.atom(monitor.name));
        const XReply<xcb_generic_error_t> refused(xcb_request_check(client.connection(), cookie));
    }
    const auto outputs = outputsOf(client);
    for (std::size_t i = 0; i < monitors.size(); ++i) {
        const Monitor& monitor = monitors[i];
        SetMonitorRequest request;
        if (i == 0 && !outputs.empty()) { // the others stand on no output
            request.monitor.nOutput = 1;
            request.output = outputs.front();
        }
        request.monitor.name = client.atom(monitor.name);
        request.monitor.primary = monitor.role == MonitorRole::primary ? 1 : 0;
        request.monitor.x = static_cast<std::int16_t>(monitor.rect.x);
        request.monitor.y = static_cast<std::int16_t>(monitor.rect.y);
        request.monitor.width = static_cast<std::uint16_t>(monitor.rect.width);
        request.monitor.height = static_cast<std::uint16_t>(monitor.rect.height);
        request.monitor.width_in_millimeters = static_cast<std::uint32_t>(monitor.rect.width * millimetresPerPixel);
        request.monitor.height_in_millimeters = static_cast<std::uint32_t>(monitor.rect.height * millimetresPerPixel);
        setMonitor(client, request, monitor.name);
    }
    if (current().size() != monitors.size()) {
        throw HarnessError(fmt::format("{} monitors instead of {}", current().size(), monitors.size()));
    }
}

std::vector<Monitor> Monitors::current()
{
    auto* link = client.connection();
    const XReply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(link, xcb_randr_get_monitors(link, client.root(), 1), nullptr));
    std::vector<Monitor> monitors;
    for (auto it = xcb_randr_get_monitors_monitors_iterator(reply.get()); it.rem > 0;
         xcb_randr_monitor_info_next(&it)) {
        monitors.push_back({client.atomName(it.data->name),
                            {it.data->x, it.data->y, it.data->width, it.data->height},
                            it.data->primary != 0 ? MonitorRole::primary : MonitorRole::secondary});
    }
    return monitors;
}

} // namespace quorvel::xtest
