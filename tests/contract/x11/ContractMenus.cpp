#include "contract/x11/ContractMenus.h"

#include <algorithm>
#include <utility>

#include "base/FatalError.h"

namespace quorvel::contract {

bool ContractMenus::choose(std::string_view title)
{
    const auto menu = std::exchange(opened, std::nullopt).value();
    const auto entry = std::ranges::find_if(
        menu.menu.entries, [&](const MenuEntry& each) { return each && each->isEnabled && each->title == title; });
    if (entry == menu.menu.entries.end()) {
        return false;
    }
    mainQueue.async([onCommand = menu.onCommand, command = (*entry)->command] { onCommand(command); });
    return true;
}

void ContractMenus::openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand)
{
    opened = OpenMenu{menu, std::move(onCommand)};
}

std::size_t ContractMenus::runAlert(const Alert& /*alert*/, const std::filesystem::path& /*icon*/)
{
    fatalError("No suite shows an alert");
}

std::unique_ptr<x11::ToolkitWindow> ContractMenus::createPreferencesWindow(PreferencesWindowModel&,
                                                                           x11::ToolkitWindowCallbacks)
{
    return nullptr;
}

std::unique_ptr<x11::ToolkitWindow> ContractMenus::createAboutWindow(const AboutContent&)
{
    return nullptr;
}

} // namespace quorvel::contract
