#pragma once

#include <functional>
#include <vector>

#import <Foundation/Foundation.h>

#include "platform/macos/Retained.h"

namespace quorvel::macos {

// Tells that the machine has woken up or that its user has come back to this session from that of another one.
class SessionReturns {
public:
    // `returned` runs on the main thread until this goes.
    explicit SessionReturns(std::function<void()> returned);
    SessionReturns(const SessionReturns&) = delete;
    SessionReturns& operator=(const SessionReturns&) = delete;
    ~SessionReturns();

private:
    std::vector<Retained<id>> observers;
};

} // namespace quorvel::macos
