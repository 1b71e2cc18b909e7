#include "platform/macos/desktop/MacStatusBar.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "contract/macos/BundleFolder.h"
#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/StatusItems.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {
namespace {

class MacStatusBarTest : public testing::Test {
protected:
    MacStatusBarTest()
    {
        fakes::startDisplayServer();
        item = statusBar.createItem();
    }

    static std::vector<std::string> titles()
    {
        std::vector<std::string> result;
        for (NSMenuItem* each in [fakes::openStatusMenu() itemArray]) {
            result.push_back([each isSeparatorItem] ? "-" : utf8([each title]));
        }
        return result;
    }

    static id entry(NSString* title) { return [fakes::openStatusMenu() itemWithTitle:title]; }

    const Menu menu{.entries = {MenuItem{"Check...", {}, MenuCommand::checkForUpdates, false, "Not here."},
                                MenuItem{"Preferences...", ",", MenuCommand::showPreferences}, std::nullopt,
                                MenuItem{"Quit", "q", MenuCommand::terminate}},
                    .secureInputNotice = "Keys are read elsewhere"};
    contract::BundleFolder folder;
    SimulatedDesktop desktop;
    fakes::FakeDesktop fake{desktop};
    MacStatusBar statusBar{folder.bundle()};
    std::unique_ptr<StatusItem> item;
};

TEST_F(MacStatusBarTest, TheImageIsDrawnInTheColourOfTheMenuBar)
{
    item->setImage({"MenuBarIcon", true});

    NSImage* const image = [[fakes::statusItem() button] image];
    EXPECT_EQ(utf8([image name]), "MenuBarIcon");
    EXPECT_TRUE([image isTemplate]);
}

TEST_F(MacStatusBarTest, ScreenReadersNameTheProgram)
{
    EXPECT_EQ(utf8([[fakes::statusItem() button] accessibilityLabel]), "Quorvel");
}

TEST_F(MacStatusBarTest, AMissingImageLeavesTheButtonWithoutOne)
{
    item->setImage({"Nonsense", true});

    EXPECT_EQ([[fakes::statusItem() button] image], nil);
}

TEST_F(MacStatusBarTest, TheMenuHasTheEntriesInTheirOrder)
{
    item->setMenu(menu, [](MenuCommand) {});

    EXPECT_EQ(titles(), (std::vector<std::string>{"Check...", "Preferences...", "-", "Quit"}));
}

TEST_F(MacStatusBarTest, AnEntryHasItsKeyItsStateAndItsToolTip)
{
    item->setMenu(menu, [](MenuCommand) {});

    EXPECT_EQ(utf8([entry(@"Preferences...") keyEquivalent]), ",");
    EXPECT_EQ([entry(@"Preferences...") keyEquivalentModifierMask], NSUInteger { NSEventModifierFlagCommand });
    EXPECT_TRUE([entry(@"Preferences...") isEnabled]);
    EXPECT_EQ([entry(@"Preferences...") toolTip], nil);
    EXPECT_FALSE([entry(@"Check...") isEnabled]);
    EXPECT_EQ(utf8([entry(@"Check...") toolTip]), "Not here.");
}

TEST_F(MacStatusBarTest, TheMenuSaysWhileAnotherApplicationReadsTheKeyboardAlone)
{
    item->setMenu(menu, [](MenuCommand) {});

    fake.isSecureInputEnabled = true;
    EXPECT_EQ(titles(),
              (std::vector<std::string>{"Keys are read elsewhere", "-", "Check...", "Preferences...", "-", "Quit"}));
    EXPECT_FALSE([entry(@"Keys are read elsewhere") isEnabled]);

    fake.isSecureInputEnabled = false;
    EXPECT_EQ(titles(), (std::vector<std::string>{"Check...", "Preferences...", "-", "Quit"}));
}

TEST_F(MacStatusBarTest, ADestroyedItemLeavesTheMenuBar)
{
    item->setMenu(menu, [](MenuCommand) {});

    item.reset();

    EXPECT_EQ(fakes::statusItem(), nil);
}

} // namespace
} // namespace quorvel::macos
