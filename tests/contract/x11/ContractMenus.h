#pragma once

#include <optional>
#include <string_view>

#include "platform/MainQueue.h"
#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::contract {

// Menus without a toolkit, and the person who chooses from them.
class ContractMenus final : public x11::ToolkitUi {
public:
    explicit ContractMenus(MainQueue& mainQueue) : mainQueue(mainQueue) {}

    bool isOpen() const { return opened.has_value(); }

    // Closes the open menu, with an entry of that title if there is one and it is enabled.
    bool choose(std::string_view title);

    void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;
    std::size_t runAlert(const Alert& alert, const std::filesystem::path& icon) override;
    std::unique_ptr<x11::ToolkitWindow> createPreferencesWindow(PreferencesWindowModel& model,
                                                                x11::ToolkitWindowCallbacks callbacks) override;
    std::unique_ptr<x11::ToolkitWindow> createAboutWindow(const AboutContent& content) override;
    void endInnerLoops() override {}

private:
    struct OpenMenu {
        Menu menu;
        std::function<void(MenuCommand)> onCommand;
    };

    MainQueue& mainQueue;
    std::optional<OpenMenu> opened;
};

} // namespace quorvel::contract
