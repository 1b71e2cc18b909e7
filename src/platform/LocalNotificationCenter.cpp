#include "platform/LocalNotificationCenter.h"

#include <utility>

#include "platform/MainQueue.h"

namespace quorvel {

LocalNotificationCenter::LocalNotificationCenter(MainQueue& mainQueue) : mainQueue(mainQueue) {}

LocalNotificationCenter::~LocalNotificationCenter() = default;

void LocalNotificationCenter::post(std::string_view name, NotificationObject object)
{
    for (const auto& [id, observer] : *observers) {
        const bool matches =
            observer->name == name && (observer->object == noNotificationObject || observer->object == object);
        if (!matches) {
            continue;
        }
        mainQueue.async([observers = std::weak_ptr(observers), id = id, observer = observer] {
            const auto current = observers.lock();
            if (current && current->contains(id)) {
                observer->handler();
            }
        });
    }
}

Subscription LocalNotificationCenter::observe(std::string_view name, NotificationObject object,
                                              std::function<void()> handler)
{
    const auto id = nextId++;
    observers->emplace(id, std::make_shared<const Observer>(Observer{std::string(name), object, std::move(handler)}));
    return Subscription([observers = std::weak_ptr(observers), id] {
        if (const auto current = observers.lock()) {
            current->erase(id);
        }
    });
}

} // namespace quorvel
