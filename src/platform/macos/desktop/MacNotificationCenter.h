#pragma once

#include <map>
#include <string>

#include "platform/LocalNotificationCenter.h"

namespace quorvel::macos {

// The default notification centre of the process, where the system announces its own windows, too: their object is the
// window's address. Observers hear through a local centre, which keeps the order in which they came.
class MacNotificationCenter final : public NotificationCenter {
public:
    explicit MacNotificationCenter(MainQueue& mainQueue) : local(mainQueue) {}

    void post(std::string_view name, NotificationObject object) override;
    Subscription observe(std::string_view name, NotificationObject object, std::function<void()> handler) override;

private:
    LocalNotificationCenter local;
    std::map<std::string, Subscription, std::less<>> heard; // by name
};

} // namespace quorvel::macos
