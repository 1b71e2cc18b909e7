#pragma once

#include <memory>
#include <utility>

namespace quorvel {

// A member that makes callbacks hold their owner weakly: a callable wrapped by guard() does nothing once the owner,
// and with it this member, is gone. Declare it last, so that it goes first. Main thread only.
class WeakGuard {
public:
    template <class Function>
    auto guard(Function function) const
    {
        return [token = std::weak_ptr<const int>(token), function = std::move(function)](auto&&... arguments) mutable {
            if (!token.expired()) {
                function(std::forward<decltype(arguments)>(arguments)...);
            }
        };
    }

private:
    std::shared_ptr<const int> token = std::make_shared<const int>(0);
};

} // namespace quorvel
