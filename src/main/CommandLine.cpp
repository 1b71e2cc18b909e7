#include "main/CommandLine.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

namespace quorvel {

namespace {

struct Option {
    std::string_view name;
    StartMode mode;
};

constexpr Option plainOptions[] = {
    {"--replace", StartMode::replace},     {"--help", StartMode::showHelp},   {"-h", StartMode::showHelp},
    {"--version", StartMode::showVersion}, {"--doctor", StartMode::diagnose},
};
constexpr Option fileOptions[] = {
    {"--export-settings", StartMode::exportSettings},
    {"--import-settings", StartMode::importSettings},
};

} // namespace

std::expected<CommandLine, std::string> commandLine(std::span<const char* const> arguments)
{
    if (arguments.empty()) {
        return CommandLine{};
    }
    const std::string_view name = arguments.front();
    const auto rest = arguments.subspan(1);
    if (name == "--doctor" && rest.size() == 1 && std::string_view(rest.front()) == "--json") {
        return CommandLine{StartMode::diagnoseAsJson, {}};
    }
    if (const auto option = std::ranges::find(fileOptions, name, &Option::name); option != std::end(fileOptions)) {
        if (rest.size() != 1) {
            return std::unexpected(fmt::format("{} needs the name of one file.", name));
        }
        return CommandLine{option->mode, rest.front()};
    }
    const auto option = std::ranges::find(plainOptions, name, &Option::name);
    if (option == std::end(plainOptions) || !rest.empty()) {
        return std::unexpected(fmt::format("Unknown argument \"{}\"; --help lists what there is.",
                                           rest.empty() ? name : std::string_view(rest.front())));
    }
    return CommandLine{option->mode, {}};
}

std::string_view helpText()
{
    return R"(Usage: quorvel [OPTION]

Places windows by keyboard. Runs until it is told to quit; its icon sits in the system tray.

  --replace                take over from a Quorvel that is running on this display
  --export-settings FILE   write the settings to FILE as a property list
  --import-settings FILE   take the settings over that FILE holds, also while Quorvel is running
  --doctor [--json]        tell what this desktop offers and what stands in Quorvel's way
  --help                   show this text
  --version                show the version

Settings are kept in $XDG_CONFIG_HOME/quorvel/settings.plist, or in ~/.config/quorvel where the variable is not set.
)";
}

} // namespace quorvel
