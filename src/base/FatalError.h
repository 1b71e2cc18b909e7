#pragma once

#include <functional>
#include <string_view>

#include "base/Subscription.h"

namespace quorvel {

// Ends the program because an invariant is broken: prints the message to standard error and aborts. Where an
// interceptor is installed it is called first and leaves by throwing, which lets tests observe the end.
[[noreturn]] void fatalError(std::string_view message);

// Replaces the interceptor until the returned token goes.
Subscription interceptFatalErrors(std::function<void(std::string_view)> interceptor);

} // namespace quorvel
