#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Bundle.h"

namespace quorvel {

enum class MenuCommand { showAbout, checkForUpdates, showPreferences, showGuide, terminate };

struct MenuItem {
    std::string title;
    std::string keyEquivalent; // pressed with Command; empty for none
    MenuCommand command = MenuCommand::terminate;
    bool isEnabled = true;
    std::string toolTip{}; // shown while the mouse rests on the entry; empty for none

    bool operator==(const MenuItem&) const = default;
};

// An entry is an item or, where it is absent, a separator.
using MenuEntry = std::optional<MenuItem>;

struct Menu {
    std::vector<MenuEntry> entries;

    // A line that heads the menu when it opens while another application reads the keyboard alone, which hides keys
    // from this one.
    //
    // X11: no application can do that without everybody's notice; the line is never shown.
    std::string secureInputNotice{};

    bool operator==(const Menu&) const = default;
};

// An icon in the menu bar or tray. Destroying it removes it.
class StatusItem {
public:
    StatusItem() = default;
    StatusItem(const StatusItem&) = delete;
    StatusItem& operator=(const StatusItem&) = delete;
    virtual ~StatusItem() = default;

    virtual bool hasButton() const = 0;
    virtual void setImage(const Image& image) = 0;

    // Opens on a click; `onCommand` runs from the main loop with the chosen item's command.
    virtual void setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) = 0;
};

class StatusBar {
public:
    StatusBar() = default;
    StatusBar(const StatusBar&) = delete;
    StatusBar& operator=(const StatusBar&) = delete;
    virtual ~StatusBar() = default;

    // An item as wide as its content.
    //
    // X11: where no tray runs the item appears as soon as one does.
    virtual std::unique_ptr<StatusItem> createItem() = 0;
};

} // namespace quorvel
