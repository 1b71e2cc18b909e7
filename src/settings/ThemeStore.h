#pragma once

#include "settings/BasicThemeStore.h"

namespace quorvel {

using ThemeStore = BasicThemeStore<Theme>;
using SwitcherThemeStore = BasicThemeStore<SwitcherTheme>;
using MoveResizeThemeStore = BasicThemeStore<MoveResizeTheme>;

} // namespace quorvel
