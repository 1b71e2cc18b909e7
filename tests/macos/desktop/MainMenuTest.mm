#include "platform/macos/desktop/MainMenu.h"

#include <map>
#include <string>

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "macos/fakes/DisplayServer.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {
namespace {

// The actions of the menu and those below it, by key.
std::map<std::string, std::string> actionsByKey(NSMenu* menu)
{
    std::map<std::string, std::string> actions;
    for (NSMenuItem* item in [menu itemArray]) {
        if ([item hasSubmenu]) {
            actions.merge(actionsByKey([item submenu]));
        } else {
            actions.emplace(utf8([item keyEquivalent]), utf8(NSStringFromSelector([item action])));
        }
    }
    return actions;
}

TEST(MainMenu, WindowsTakeTheUsualKeysFromIt)
{
    fakes::startDisplayServer();
    const auto menu = mainMenu();
    EXPECT_EQ(actionsByKey(menu.get()), (std::map<std::string, std::string>{{"q", "terminate:"},
                                                                            {"z", "undo:"},
                                                                            {"Z", "redo:"},
                                                                            {"x", "cut:"},
                                                                            {"c", "copy:"},
                                                                            {"v", "paste:"},
                                                                            {"a", "selectAll:"},
                                                                            {"w", "performClose:"},
                                                                            {"m", "performMiniaturize:"}}));
}

} // namespace
} // namespace quorvel::macos
