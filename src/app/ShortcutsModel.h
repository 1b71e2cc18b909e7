#pragma once

#include "base/Signal.h"

namespace quorvel {

// A step of choosing a layout, for whoever wants to watch it.
class ShortcutsModel {
public:
    enum class States { idle, waitingLayoutSelection };
    using Observer = Signal<States>::Observer;

    States state() const { return published; }

    // Tells every observer, in the order of their registration, also when the state stays what it was.
    void setState(States state);

    // Calls `observer` after each setting until the token goes.
    Subscription observeState(Observer observer);

private:
    States published = States::idle;
    Signal<States> stateChanged;
};

} // namespace quorvel
