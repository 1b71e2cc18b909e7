#include "main/CommandLine.h"

#include <fmt/format.h>

namespace quorvel {

std::expected<StartMode, std::string> startMode(std::span<const char* const> arguments)
{
    auto mode = StartMode::run;
    for (const std::string_view argument : arguments) {
        if (argument == "--help" || argument == "-h") {
            return StartMode::showHelp;
        }
        if (argument == "--version") {
            return StartMode::showVersion;
        }
        if (argument != "--replace") {
            return std::unexpected(fmt::format("Unknown argument \"{}\"; --help lists what there is.", argument));
        }
        mode = StartMode::replace;
    }
    return mode;
}

std::string_view helpText()
{
    return R"(Usage: quorvel [OPTION]

Places windows by keyboard. Runs until it is told to quit; its icon sits in the system tray.

  --replace   take over from a Quorvel that is running on this display
  --help      show this text
  --version   show the version

Settings are kept in $XDG_CONFIG_HOME/quorvel/settings.plist, or in ~/.config/quorvel where the variable is not set.
)";
}

} // namespace quorvel
