#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/NotificationCenter.h"

namespace quorvel {

class MainQueue;

// Notifications within this process, for platforms without a notification centre of their own.
class LocalNotificationCenter final : public NotificationCenter {
public:
    explicit LocalNotificationCenter(MainQueue& mainQueue);
    ~LocalNotificationCenter() override;

    void post(std::string_view name, NotificationObject object) override;
    Subscription observe(std::string_view name, NotificationObject object, std::function<void()> handler) override;

private:
    struct Observer {
        std::string name;
        NotificationObject object = noNotificationObject;
        std::function<void()> handler;
    };
    using Observers = std::map<std::uint64_t, std::shared_ptr<const Observer>>;

    MainQueue& mainQueue;
    std::shared_ptr<Observers> observers = std::make_shared<Observers>();
    std::uint64_t nextId = 1;
};

} // namespace quorvel
