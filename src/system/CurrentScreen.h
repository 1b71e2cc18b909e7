#pragma once

#include <optional>

#include "platform/Screens.h"

namespace quorvel {

// The display that the program works on: one object, shared by every ScreensModel. It keeps the display as it was when
// it was chosen, also after the display is gone.
struct CurrentScreen {
    std::optional<Screen> screen;
};

} // namespace quorvel
