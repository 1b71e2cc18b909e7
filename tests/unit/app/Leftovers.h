#pragma once

#include <optional>
#include <string>

namespace quorvel {

class GlobalEventBlocker;
class MainController;
class SimulatedDesktop;

// What is still there while no mode is on: keys that are held back, windows on screen, monitors. Nothing if all is
// well.
std::optional<std::string> leftoverOf(MainController& controller, const GlobalEventBlocker& blocker,
                                      const SimulatedDesktop& desktop);

} // namespace quorvel
