#pragma once

#include <functional>
#include <vector>

#include "base/Subscription.h"

namespace quorvel::macos {

// Calls `returned` on the main thread when the machine has woken up or its user has come back to this session from that
// of another one, until the tokens go.
std::vector<Subscription> observeSessionReturns(const std::function<void()>& returned);

} // namespace quorvel::macos
