#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>

#include "platform/Alerts.h"
#include "platform/StatusBar.h"

namespace quorvel::x11 {

// What needs a toolkit's widgets.
class ToolkitUi {
public:
    ToolkitUi() = default;
    ToolkitUi(const ToolkitUi&) = delete;
    ToolkitUi& operator=(const ToolkitUi&) = delete;
    virtual ~ToolkitUi() = default;

    // Opens the menu at the mouse pointer. `onCommand` runs from the main loop if an entry is chosen.
    virtual void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) = 0;

    // Shows the alert, with the picture in that file if there is one, and turns the main loop until it is answered.
    // Returns the index of the chosen button; closing the alert otherwise counts as its last one.
    virtual std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) = 0;
};

// The function that the toolkit's module exports under toolkitEntryName. The name of the display may be empty for the
// one of the environment. The result belongs to the caller; null if the toolkit cannot start.
using ToolkitEntry = ToolkitUi*(const char* displayName);

inline constexpr const char* toolkitEntryName = "quorvelCreateToolkit";

} // namespace quorvel::x11
