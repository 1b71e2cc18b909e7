#pragma once

#include "base/Subscription.h"
#include "platform/x11/TrackedProperty.h"

namespace quorvel::x11 {

// What the window manager says on the root window, always as of the last event that was handled.
class RootProperties {
public:
    explicit RootProperties(Connection& connection);

private:
    Subscription selection; // first, so that no change is missed

public:
    TrackedProperty activeWindow;
    TrackedProperty clientList;
    TrackedProperty clientListStacking;
    TrackedProperty currentDesktop;
    TrackedProperty supported;
    TrackedProperty supportingWmCheck;
    TrackedProperty workarea;
};

} // namespace quorvel::x11
