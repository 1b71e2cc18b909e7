#pragma once

#include <string>
#include <vector>

#include "support/PixelRect.h"
#include "support/XClient.h"

namespace quorvel::xtest {

enum class MonitorRole { primary, secondary };

struct Monitor {
    std::string name;
    PixelRect rect;
    MonitorRole role = MonitorRole::secondary;
};

// A named arrangement; its monitors fit a root of 3840 by 2400.
struct MonitorArrangement {
    std::string name;
    std::vector<Monitor> monitors;
};

// One, two and three monitors beside, above and below each other, of different sizes. Where the primary monitor is not
// at the root's origin, its neighbours lie at negative offsets from it.
const std::vector<MonitorArrangement>& monitorArrangements();

// Divides the server's screen into monitors, as RandR clients do.
class Monitors {
public:
    explicit Monitors(XClient& client) : client(client) {}

    // Replaces the monitors and waits until the server lists exactly these.
    void arrange(const std::vector<Monitor>& monitors);

    // What the server lists, in its order.
    std::vector<Monitor> current();

private:
    XClient& client;
};

} // namespace quorvel::xtest
