#pragma once

#include "platform/EventMonitors.h"

namespace quorvel::macos {

class MacEventMonitors final : public EventMonitors {
public:
    Subscription addGlobalMouseDownMonitor(std::function<void()> handler) override;
    Subscription addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler) override;
};

} // namespace quorvel::macos
