#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "base/FatalError.h"

namespace quorvel {

// Runs the action and returns the message of the fatal error that ended it; nothing if none did.
template <class Action>
std::optional<std::string> fatalErrorOf(Action&& action)
{
    struct Ended : std::runtime_error {
        using std::runtime_error::runtime_error;
    };
    const auto interception = interceptFatalErrors([](std::string_view message) { throw Ended(std::string(message)); });
    try {
        std::forward<Action>(action)();
    } catch (const Ended& ended) {
        return ended.what();
    }
    return std::nullopt;
}

} // namespace quorvel
