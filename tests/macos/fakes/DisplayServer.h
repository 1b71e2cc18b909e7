#pragma once

namespace quorvel::fakes {

// Lets GNUstep's windows live on the desktop in memory instead of a display: where the desktop has a window of this
// program, there is a visible NSWindow, and what it says of itself is what the NSWindow was told. Starts AppKit;
// further calls do nothing.
void startDisplayServer();

} // namespace quorvel::fakes
