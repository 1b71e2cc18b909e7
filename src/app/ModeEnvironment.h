#pragma once

#include <memory>

#include "app/ActionArguments.h"

namespace quorvel {

struct CurrentScreen;
struct Platform;
class GlobalEventBlocker;
class LayoutsManager;
class OverlayWindowManager;
class StateManager;

// What a mode works with. All of it outlives the modes; a mode gives its own further commands to `handleAction`.
struct ModeEnvironment {
    const Platform& platform;
    OverlayWindowManager& overlayWindowManager;
    LayoutsManager& layoutsManager;
    StateManager& stateManager;
    GlobalEventBlocker* eventBlocker = nullptr; // null where keys cannot be blocked
    std::shared_ptr<CurrentScreen> currentScreen;
    ActionHandler handleAction;
};

} // namespace quorvel
