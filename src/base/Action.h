#pragma once

namespace quorvel {

// The commands that global hot keys and captured keys lead to.
enum class Action {
    cancel,
    activateOverlay,
    moveResizeFrontmost,
    moveClientWindow,
    nextLayout,
    previousLayout,
    jumpToLayout,
    nextScreen,
    previousScreen,
    focusSwitcher,
};

} // namespace quorvel
