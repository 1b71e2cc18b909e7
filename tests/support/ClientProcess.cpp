#include "support/ClientProcess.h"

#include <algorithm>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

std::vector<std::string> wordsFor(ClientProcess::Kind kind, const std::string& title)
{
    switch (kind) {
    case ClientProcess::Kind::xterm:
        return {"xterm", "-geometry", "80x24", "-title", title, "-e", "cat"};
    case ClientProcess::Kind::mousepad:
        return {"mousepad", "--disable-server"};
    case ClientProcess::Kind::qt:
        return {QUORVEL_QT_CLIENT, title};
    case ClientProcess::Kind::plain:
        return {QUORVEL_PLAIN_CLIENT, title};
    }
    throw HarnessError("unknown kind of client");
}

} // namespace

ClientProcess::ClientProcess(const XServer& server, XClient& client, Kind kind, const std::string& title)
    : ClientProcess(server, client, wordsFor(kind, title))
{}

ClientProcess::ClientProcess(const XServer& server, XClient& client, const std::vector<std::string>& words)
    : client(client)
{
    const auto before = client.managedWindows();
    child = std::make_unique<ChildProcess>(Command{words, server.clientEnvironment(), {}});
    client.waitFor("the window of " + words.front(), [&] {
        for (const xcb_window_t window : client.managedWindows()) {
            if (std::ranges::count(before, window) == 0 && client.processOf(window) == child->id() &&
                client.isViewable(window)) {
                windowId = window;
                return true;
            }
        }
        return false;
    });
}

ClientProcess::~ClientProcess() = default;

bool ClientProcess::isInstalled(Kind kind)
{
    return findProgram(wordsFor(kind, "").front()).has_value();
}

const std::vector<ClientProcess::Kind>& ClientProcess::allKinds()
{
    static const std::vector<Kind> all = {Kind::xterm, Kind::mousepad, Kind::qt, Kind::plain};
    return all;
}

std::string ClientProcess::nameOf(Kind kind)
{
    switch (kind) {
    case Kind::xterm:
        return "xterm";
    case Kind::mousepad:
        return "mousepad";
    case Kind::qt:
        return "qt";
    case Kind::plain:
        return "plain";
    }
    throw HarnessError("unknown kind of client");
}

void ClientProcess::kill()
{
    child->kill();
    client.waitFor("a client's window to be gone", [this] { return !client.exists(windowId); });
}

} // namespace quorvel::xtest
