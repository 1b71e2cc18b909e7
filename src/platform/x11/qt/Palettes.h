#pragma once

#include <QPalette>

#include "platform/x11/desktop/DesktopStyle.h"

namespace quorvel::x11 {

QPalette schemePalette(ColorScheme scheme);

} // namespace quorvel::x11
