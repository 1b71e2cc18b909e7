#pragma once

#include <filesystem>

namespace quorvel {

// Both say on standard error what they could not do, a line each, and answer whether the work was done. They need no
// display, and a Quorvel that is running takes imported settings over at once.

// Writes the stored settings to the file as a property list in XML. Whatever else the settings file holds stays at
// home.
bool exportSettings(const std::filesystem::path& file);

// Takes over every setting of the file that the table of settings allows; others of the file are refused in a line
// each, and settings that it does not hold stay as they are. A file that cannot be read changes nothing.
bool importSettings(const std::filesystem::path& file);

} // namespace quorvel
