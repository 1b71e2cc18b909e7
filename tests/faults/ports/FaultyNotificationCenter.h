#pragma once

#include <utility>

#include "platform/NotificationCenter.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyNotificationCenter final : public NotificationCenter {
public:
    FaultyNotificationCenter(NotificationCenter& real, PortFaults& faults) : real(real), faults(faults) {}

    void post(std::string_view name, NotificationObject object) override
    {
        faults.attemptEffect("NotificationCenter.post", [&] { real.post(name, object); });
    }

    Subscription observe(std::string_view name, NotificationObject object, std::function<void()> handler) override
    {
        return faults.attempt(
            "NotificationCenter.observe", [&] { return real.observe(name, object, std::move(handler)); },
            Subscription());
    }

private:
    NotificationCenter& real;
    PortFaults& faults;
};

} // namespace quorvel
