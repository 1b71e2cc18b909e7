#pragma once

#include <expected>
#include <span>
#include <string>
#include <string_view>

namespace quorvel {

enum class StartMode { run, replace, showHelp, showVersion };

// What the program is asked to do; the error is a text for people.
std::expected<StartMode, std::string> startMode(std::span<const char* const> arguments);

std::string_view helpText();

} // namespace quorvel
