#include "app/StatusMenu.h"

#include <string>
#include <utility>

namespace quorvel {

Menu statusMenu(const MenuActions& actions)
{
    const auto item = [&actions](std::string title, std::string keyEquivalent, MenuCommand command) {
        return MenuItem{std::move(title), std::move(keyEquivalent), command, actions.contains(command)};
    };
    auto updates = item("Check for Updates...", "", MenuCommand::checkForUpdates);
    if (!updates.isEnabled) {
        updates.toolTip = "This build does not update itself.";
    }
    const MenuEntry separator;
    return {
        .entries = {item("About Quorvel...", "", MenuCommand::showAbout), updates,
                    item("Preferences...", ",", MenuCommand::showPreferences),
                    item("User Guide", "", MenuCommand::showGuide), separator,
                    item("Quit", "q", MenuCommand::terminate)},
        .secureInputNotice = "Another application reads the keyboard alone",
    };
}

} // namespace quorvel
