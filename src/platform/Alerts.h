#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorvel {

enum class AlertStyle { informational, warning };

struct Alert {
    AlertStyle style = AlertStyle::informational;
    std::string messageText;
    std::string informativeText;
    std::string iconName;             // a bundle image, or empty for the application's own icon
    std::vector<std::string> buttons; // the first is the default

    bool operator==(const Alert&) const = default;
};

class Alerts {
public:
    Alerts() = default;
    Alerts(const Alerts&) = delete;
    Alerts& operator=(const Alerts&) = delete;
    virtual ~Alerts() = default;

    // Shows the alert and waits for the answer while the main loop runs on. Returns the index of the chosen button;
    // closing the alert otherwise counts as its last one.
    virtual std::size_t runModal(const Alert& alert) = 0;
};

} // namespace quorvel
