#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "base/Subscription.h"

namespace quorvel {

// Tells whoever observes it that something happened, at once and in the order of their registration. An observer may
// come or go while they are being told; one that has gone hears nothing more.
template <class... Arguments>
class Signal {
public:
    using Observer = std::function<void(Arguments...)>;

    // Calls `observer` each time until the token goes.
    Subscription observe(Observer observer)
    {
        const auto id = nextId++;
        observers->emplace(id, std::move(observer));
        return Subscription([observers = std::weak_ptr(observers), id] {
            if (const auto current = observers.lock()) {
                current->erase(id);
            }
        });
    }

    void emit(const Arguments&... arguments) const
    {
        const auto current = observers; // outlives this signal, should an observer destroy it
        for (const auto& [id, observer] : Observers(*current)) {
            if (current->contains(id)) {
                observer(arguments...);
            }
        }
    }

    std::size_t observerCount() const { return observers->size(); }

private:
    using Observers = std::map<std::uint64_t, Observer>;

    std::shared_ptr<Observers> observers = std::make_shared<Observers>();
    std::uint64_t nextId = 1;
};

} // namespace quorvel
