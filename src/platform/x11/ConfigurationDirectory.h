#pragma once

#include <filesystem>

namespace quorvel::x11 {

// Where programs keep what their user has set: $XDG_CONFIG_HOME, or ~/.config where that is unset or not absolute.
std::filesystem::path configurationDirectory();

} // namespace quorvel::x11
