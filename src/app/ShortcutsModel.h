#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "base/Subscription.h"

namespace quorvel {

// A step of choosing a layout, for whoever wants to watch it.
class ShortcutsModel {
public:
    enum class States { idle, waitingLayoutSelection };
    using Observer = std::function<void(States)>;

    States state() const { return published; }

    // Tells every observer, in the order of their registration, also when the state stays what it was.
    void setState(States state);

    // Calls `observer` after each setting until the token goes.
    Subscription observeState(Observer observer);

private:
    using Observers = std::map<std::uint64_t, Observer>;

    States published = States::idle;
    std::shared_ptr<Observers> observers = std::make_shared<Observers>();
    std::uint64_t nextId = 1;
};

} // namespace quorvel
