#pragma once

#include <functional>
#include <map>

#include "platform/StatusBar.h"

namespace quorvel {

// What this build can do on a command of the menu.
using MenuActions = std::map<MenuCommand, std::function<void()>>;

// The menu of the status item. An entry without an action is there, but disabled.
Menu statusMenu(const MenuActions& actions);

} // namespace quorvel
