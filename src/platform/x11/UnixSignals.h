#pragma once

#include <functional>

#include "base/Subscription.h"

namespace quorvel::x11 {

// Runs the handler from the main loop whenever the process gets that signal (SIGHUP, SIGINT, SIGTERM or SIGUSR1), until
// the token goes.
Subscription onUnixSignal(int number, std::function<void()> handler);

} // namespace quorvel::x11
