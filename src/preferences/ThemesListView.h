#pragma once

#include "preferences/BasicThemesListView.h"

namespace quorvel {

using ThemesListView = BasicThemesListView<Theme>;
using SwitcherThemesListView = BasicThemesListView<SwitcherTheme>;
using MoveResizeThemesListView = BasicThemesListView<MoveResizeTheme>;

} // namespace quorvel
