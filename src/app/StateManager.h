#pragma once

namespace quorvel {

// Whether labels are on screen that take all keys.
class StateManager {
public:
    enum class States { normal, overlayOn };

    States currentState = States::normal;
};

} // namespace quorvel
