#include "app/StatusMenu.h"

#include <string>
#include <utility>

namespace quorvel {

Menu statusMenu(const MenuActions& actions)
{
    const auto item = [&actions](std::string title, std::string keyEquivalent, MenuCommand command) {
        return MenuItem{std::move(title), std::move(keyEquivalent), command, actions.contains(command)};
    };
    const MenuEntry separator;
    return {{
        item("About Quorvel...", "", MenuCommand::showAbout),
        item("Check for Updates...", "", MenuCommand::checkForUpdates),
        item("Preferences...", ",", MenuCommand::showPreferences),
        item("User Guide", "", MenuCommand::showGuide),
        separator,
        item("Quit", "q", MenuCommand::terminate),
    }};
}

} // namespace quorvel
