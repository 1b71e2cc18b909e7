#pragma once

#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

namespace quorvel::x11 {

// Parts of this program that are loaded when they are needed.

// The file of a module that belongs to the running program, in the build tree and installed.
std::filesystem::path moduleFile(std::string_view name);

// Loads a module for good (the libraries behind it leave threads and exit handlers behind) and answers the function
// that it exports under the name. The error tells what went wrong.
std::expected<void*, std::string> moduleFunction(const std::filesystem::path& file, const char* name);

} // namespace quorvel::x11
