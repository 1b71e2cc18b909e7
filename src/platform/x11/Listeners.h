#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "base/Subscription.h"

namespace quorvel::x11 {

// Functions that are called together for as long as their tokens live. They may come and go during a call; one that
// went is not called any more.
template <class... Arguments>
class Listeners {
public:
    using Function = std::function<void(Arguments...)>;

    Subscription add(Function function)
    {
        auto listener = std::make_shared<const Function>(std::move(function));
        listeners->push_back(listener);
        return Subscription([listeners = std::weak_ptr(listeners), listener] {
            if (const auto list = listeners.lock()) {
                std::erase(*list, listener);
            }
        });
    }

    void call(Arguments... arguments) const
    {
        const auto list = listeners; // a listener may destroy the owner of this object
        for (const auto& listener : List(*list)) {
            if (std::ranges::find(*list, listener) != list->end()) {
                (*listener)(arguments...);
            }
        }
    }

    bool isEmpty() const { return listeners->empty(); }

private:
    using List = std::vector<std::shared_ptr<const Function>>;

    std::shared_ptr<List> listeners = std::make_shared<List>();
};

} // namespace quorvel::x11
