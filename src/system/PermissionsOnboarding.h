#pragma once

#include <functional>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/Permissions.h"

namespace quorvel {

struct Platform;

// Walks a person through the two permissions that the program needs, one after the other, and watches for them being
// given. Main thread only.
class PermissionsOnboarding {
public:
    explicit PermissionsOnboarding(const Platform& platform);

    // Called once, when both permissions are there; never if a person postpones, or after Input Monitoring was given
    // during this run, which takes effect with the next start only. Set it before run().
    void setOnAllGranted(std::function<void()> handler);

    void run();

private:
    using Step = void (PermissionsOnboarding::*)();

    void continueWithInputMonitoring();
    void offerRestart();
    void waitFor(Permission permission, Step next);
    void poll(Permission permission, Step next);
    void stopPolling();
    void postpone();

    const Platform& platform;
    std::function<void()> onAllGranted;
    Subscription pollTimer;
    WeakGuard weakly;
};

} // namespace quorvel
