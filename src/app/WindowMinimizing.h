#pragma once

namespace quorvel {

struct Platform;
class WindowElementModel;

// Minimizes the window, which its application has to list where the model knows it, within 2 points; of several that
// are there it is the model's own one if it can be told. False, and a line in the log, if that does not work.
bool minimizeWindow(const Platform& platform, const WindowElementModel& window);

} // namespace quorvel
