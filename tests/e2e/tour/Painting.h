#pragma once

#include <vector>

#include <xcb/xcb.h>

#include "support/PixelRect.h"
#include "support/XClient.h"

namespace quorvel::tour {

// Gives each monitor a wallpaper and announces it as desktop programs do, so that a compositor shows it, too.
void paintRoot(xtest::XClient& client, const std::vector<xtest::PixelRect>& monitors);

// The desktop's bar: a clock in the middle, the name of the desktop at the left.
void paintBar(xtest::XClient& client, xcb_window_t bar, const xtest::PixelRect& rect);

} // namespace quorvel::tour
