#pragma once

#include <set>
#include <string>
#include <vector>

#include "support/Monitors.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// Plugs monitors into a server with the dummy driver, each into an output of its own. Its root then is as large as the
// monitors need. Window managers that overlook virtual monitors heed these.
class Outputs {
public:
    Outputs(const XServer& server, XClient& client) : server(server), client(client) {}

    // Replaces the monitors and waits until the server lists these; their names are those of the outputs.
    void arrange(const std::vector<Monitor>& monitors);

private:
    // A mode of this size that the output can show.
    std::string modeOf(const Monitor& monitor, const std::string& output);
    void configure(const std::vector<std::string>& words);

    const XServer& server;
    XClient& client;
    std::set<std::string> modes;
    std::set<std::string> modesOfOutputs;
    std::size_t used = 1;
};

} // namespace quorvel::xtest
