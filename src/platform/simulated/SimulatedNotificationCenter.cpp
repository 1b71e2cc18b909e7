#include "platform/simulated/SimulatedNotificationCenter.h"

#include <utility>

#include "platform/simulated/Journal.h"

namespace quorvel {

void SimulatedNotificationCenter::post(std::string_view name, NotificationObject object)
{
    journal.record("NotificationCenter.post({})", name);
    center.post(name, object);
}

Subscription SimulatedNotificationCenter::observe(std::string_view name, NotificationObject object,
                                                  std::function<void()> handler)
{
    journal.record("NotificationCenter.observe({})", name);
    return center.observe(name, object, std::move(handler));
}

} // namespace quorvel
