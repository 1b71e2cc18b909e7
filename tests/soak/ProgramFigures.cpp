#include "soak/ProgramFigures.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <xcb/res.h>

#include "support/Patience.h"

namespace quorvel::soak {
namespace {

using xtest::HarnessError;
using xtest::XReply;

constexpr int attemptsAtRest = 10; // what the overlay itself leaves behind never comes to rest

std::vector<std::uint32_t> clientsOf(pid_t process, xtest::XClient& client)
{
    auto* const link = client.connection();
    const XReply<xcb_res_query_clients_reply_t> reply(
        xcb_res_query_clients_reply(link, xcb_res_query_clients(link), nullptr));
    if (!reply) {
        throw HarnessError("the X server lacks the X-Resource extension");
    }
    std::vector<std::uint32_t> bases;
    for (const auto& each : std::span(xcb_res_query_clients_clients(reply.get()), reply->num_clients)) {
        if (client.processOf(each.resource_base) == process) {
            bases.push_back(each.resource_base);
        }
    }
    return bases;
}

} // namespace

Sample ProgramFigures::readAtRest()
{
    auto sample = read();
    for (int attempt = 0; attempt < attemptsAtRest; ++attempt) {
        const auto before = sample;
        desktop.showOverlay();
        desktop.hideOverlay();
        sample = read();
        if (before.xResources == sample.xResources && before.pixmapBytes == sample.pixmapBytes &&
            before.descriptors == sample.descriptors) {
            break;
        }
    }
    return sample;
}

Sample ProgramFigures::read()
{
    Sample sample;
    sample.grabs = (display.grabs.isKeyboardFree() ? 0U : 1U) + (display.grabs.isPointerFree() ? 0U : 1U);
    sample.visibleWindows = visibleWindows();
    readXResources(sample);
    sample.descriptors = descriptors();
    sample.residentKibibytes = residentKibibytes();
    return sample;
}

std::size_t ProgramFigures::residentKibibytes() const
{
    std::ifstream status(fmt::format("/proc/{}/status", process));
    for (std::string word; status >> word;) {
        if (word == "VmRSS:") {
            std::size_t kibibytes = 0;
            status >> kibibytes;
            return kibibytes;
        }
    }
    throw HarnessError("the program is gone");
}

std::size_t ProgramFigures::descriptors() const
{
    const std::filesystem::directory_iterator entries(fmt::format("/proc/{}/fd", process));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::size_t ProgramFigures::visibleWindows()
{
    const auto managed = display.client.managedWindows();
    const auto ownManaged = std::ranges::count_if(
        managed, [this](xcb_window_t window) { return display.client.processOf(window) == process; });
    return display.client.topLevelsOfProcess(process).size() + static_cast<std::size_t>(ownManaged);
}

void ProgramFigures::readXResources(Sample& sample)
{
    auto* const link = display.client.connection();
    for (const std::uint32_t base : clientsOf(process, display.client)) {
        const XReply<xcb_res_query_client_resources_reply_t> resources(
            xcb_res_query_client_resources_reply(link, xcb_res_query_client_resources(link, base), nullptr));
        const XReply<xcb_res_query_client_pixmap_bytes_reply_t> pixmaps(
            xcb_res_query_client_pixmap_bytes_reply(link, xcb_res_query_client_pixmap_bytes(link, base), nullptr));
        if (!resources || !pixmaps) {
            throw HarnessError("the program closed a connection while its resources were counted");
        }
        for (const auto& type :
             std::span(xcb_res_query_client_resources_types(resources.get()), resources->num_types)) {
            sample.xResources[display.client.atomName(type.resource_type)] += type.count;
        }
        sample.pixmapBytes += (std::uint64_t{pixmaps->bytes_overflow} << 32U) + pixmaps->bytes;
        ++sample.xResources["CONNECTION"];
    }
}

} // namespace quorvel::soak
