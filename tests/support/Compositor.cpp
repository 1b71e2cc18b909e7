#include "support/Compositor.h"

namespace quorvel::xtest {
namespace {

constexpr auto selection = "_NET_WM_CM_S0";

} // namespace

Compositor::Compositor(const XServer& server, XClient& client) : client(client)
{
    client.watchSelection(selection);
    const auto configuration = server.home().write(".config/picom.conf", "backend = \"xrender\";\nshadow = true;\n"
                                                                         "shadow-radius = 14;\nshadow-opacity = 0.45;\n"
                                                                         "shadow-offset-x = -14;\n"
                                                                         "shadow-offset-y = -10;\n");
    process = std::make_unique<ChildProcess>(
        Command{{"picom", "--config", configuration.string()}, server.clientEnvironment(), {}});
    client.waitFor("the compositor", [&client] { return client.selectionOwner(selection) != XCB_NONE; });
}

Compositor::~Compositor() = default;

bool Compositor::isInstalled()
{
    return findProgram("picom").has_value();
}

void Compositor::stop()
{
    process.reset();
    client.waitFor("the compositor's end", [this] { return client.selectionOwner(selection) == XCB_NONE; });
}

} // namespace quorvel::xtest
