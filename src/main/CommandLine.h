#pragma once

#include <expected>
#include <span>
#include <string>
#include <string_view>

namespace quorvel {

enum class StartMode {
    run,
    replace,
    showHelp,
    showVersion,
    exportSettings,
    importSettings,
    diagnose,
    diagnoseAsJson,
};

// What the program is asked to do.
struct CommandLine {
    StartMode mode = StartMode::run;
    std::string file; // of the modes that need one

    bool operator==(const CommandLine&) const = default;
};

// The error is a text for people.
std::expected<CommandLine, std::string> commandLine(std::span<const char* const> arguments);

std::string_view helpText();

} // namespace quorvel
