#pragma once

#include "platform/LocalNotificationCenter.h"

namespace quorvel {

class Journal;

class SimulatedNotificationCenter final : public NotificationCenter {
public:
    SimulatedNotificationCenter(Journal& journal, MainQueue& mainQueue) : journal(journal), center(mainQueue) {}

    void post(std::string_view name, NotificationObject object) override;
    Subscription observe(std::string_view name, NotificationObject object, std::function<void()> handler) override;

private:
    Journal& journal;
    LocalNotificationCenter center;
};

} // namespace quorvel
