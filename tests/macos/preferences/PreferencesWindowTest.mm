#include <vector>

#import <Foundation/NSDebug.h>

#include "macos/fakes/Sheets.h"
#include "macos/fakes/WindowMirror.h"
#include "macos/preferences/PreferencesTest.h"
#include "platform/macos/NotificationTokens.h"
#include "platform/macos/Retained.h"

namespace quorvel::macos {
namespace {

using testing::Contains;
using testing::Not;

constexpr NSInteger shortcutsTab = 1;
constexpr NSInteger layoutAppearanceTab = 2;
constexpr NSInteger moveResizeTab = 4;
constexpr NSInteger layoutsTab = 5;

class PreferencesWindowTest : public PreferencesTest {
protected:
    // Types into the text field of an alert.
    void type(NSAlert* alert, NSString* text)
    {
        auto* const field = static_cast<NSTextField*>([alert accessoryView]);
        [field setStringValue:text];
        [static_cast<id>([field delegate]) controlTextDidChange:[NSNotification notificationWithName:@"typed"
                                                                                              object:field]];
        desktop.drain();
    }

    void answer(std::string_view button)
    {
        EXPECT_TRUE(fakes::answer(fakes::alertOver(window()), button));
        desktop.drain();
    }

    void saveTheme(NSString* name)
    {
        press("Save Current Theme");
        type(fakes::alertOver(window()), name);
        answer("Save");
    }
};

TEST_F(PreferencesWindowTest, TheWindowIsDressedAsItsContentSays)
{
    open();
    EXPECT_EQ([[window() contentView] frame].size.width, 1050.0);
    EXPECT_EQ([[window() contentView] frame].size.height, 785.0);
    EXPECT_TRUE([window() titlebarAppearsTransparent]);
    EXPECT_EQ([window() toolbarStyle], NSWindowToolbarStyleUnified);
    EXPECT_NE([window() representedURL], nil);
    EXPECT_FALSE([window() isReleasedWhenClosed]);
    EXPECT_TRUE([window() styleMask] & NSWindowStyleMaskResizable);
}

TEST_F(PreferencesWindowTest, TheViewOfTheWindowKeepsItFromGettingTooSmall)
{
    open();
    EXPECT_TRUE(NSEqualSizes(fakes::mirrorOf(window()).leastSize, NSMakeSize(950.0, 705.0)));
}

TEST_F(PreferencesWindowTest, TheControllerOfTheViewBearsTheWindowsTitle)
{
    open();
    auto* const tabs = static_cast<NSTabViewController*>([static_cast<NSTabView*>([window() contentView]) delegate]);
    EXPECT_EQ(utf8([tabs title]), "Preferences");
    EXPECT_FALSE([tabs canPropagateSelectedChildViewControllerTitle]);
}

TEST_F(PreferencesWindowTest, TabsHaveTheirTitlesUnderTheirSymbols)
{
    open();
    const auto toolbar = Retained<NSToolbar*>::adopt([[NSToolbar alloc] initWithIdentifier:@"tabs"]);
    [toolbar.get() setDisplayMode:NSToolbarDisplayModeIconOnly];
    [window() setToolbar:toolbar.get()]; // as the controller of the tabs does
    controller->showWindow();
    EXPECT_EQ([toolbar.get() displayMode], NSToolbarDisplayModeIconAndLabel);
}

TEST_F(PreferencesWindowTest, TheColorPanelClosesWithTheWindow)
{
    open();
    chooseTab(layoutAppearanceTab);
    NSColorPanel* const panel = [NSColorPanel sharedColorPanel];
    [panel orderFront:nil];
    int closings = 0;
    const auto token = observeNotification([NSNotificationCenter defaultCenter], NSWindowWillCloseNotification,
                                           [&](NSNotification* each) { closings += [each object] == panel ? 1 : 0; });
    [window() performClose:nil];
    EXPECT_FALSE([panel isVisible]);
    EXPECT_EQ(closings, 1) << "wells hear of that";
    fakes::forgetMirror(panel); // it outlives the desktop
}

TEST_F(PreferencesWindowTest, TheTabsHaveTheirTitlesInOrder)
{
    open();
    std::vector<std::string> titles;
    for (NSTabViewItem* item in [static_cast<NSTabView*>([window() contentView]) tabViewItems]) {
        titles.push_back(utf8([item label]));
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"General", "Shortcuts", "Layout Appearance",
                                                "Window Switcher Appearance", "Move/Resize Appearance", "Layouts"}));
}

TEST_F(PreferencesWindowTest, AChosenTabIsToldAndShownAgainInTheNextWindow)
{
    open();
    chooseTab(moveResizeTab);
    EXPECT_EQ(controller->selectedTab(), static_cast<std::size_t>(moveResizeTab));
    EXPECT_NE(control<NSSlider>("Behavior, Move step (px)"), nil);
}

TEST_F(PreferencesWindowTest, AChangeIsStoredAtOnceAndShown)
{
    open();
    chooseTab(moveResizeTab);
    auto* const slider = control<NSSlider>("Behavior, Move step (px)");
    ASSERT_NE(slider, nil);
    [slider setDoubleValue:31.0];
    use(slider);
    EXPECT_EQ([slider doubleValue], 30.0) << "the nearest step";
    const auto stored = desktop.userDefaults.object("mrMoveStep");
    ASSERT_TRUE(stored);
    [window() performClose:nil];
    desktop.drain();
    EXPECT_EQ(window(), nil);
    EXPECT_EQ(desktop.userDefaults.object("mrMoveStep"), stored);
}

TEST_F(PreferencesWindowTest, AShortcutIsRecorded)
{
    open();
    chooseTab(shortcutsTab);
    press("Layout Mode, Next Layout: Record");
    EXPECT_NE(control<NSButton>("Layout Mode, Next Layout: Stop"), nil);
    desktop.press(15, eventFlags::command | eventFlags::option);
    desktop.drain();
    EXPECT_THAT(person::texts(window()), Contains("⌘⌥R"));
    EXPECT_NE(control<NSButton>("Layout Mode, Next Layout: Record"), nil);
    press("Layout Mode, Next Layout: Clear");
    EXPECT_THAT(person::texts(window()), Not(Contains("⌘⌥R")));
}

TEST_F(PreferencesWindowTest, AResetAsksFirst)
{
    open();
    chooseTab(shortcutsTab);
    press("Layout Mode, Activate: Clear");
    press("Reset All Shortcuts");
    NSAlert* const alert = fakes::alertOver(window());
    ASSERT_NE(alert, nil);
    EXPECT_EQ(utf8([alert messageText]), "Reset all shortcuts to defaults?");
    EXPECT_EQ(utf8([alert informativeText]), "This will discard your current keyboard shortcut customizations.");
    ASSERT_EQ([[alert buttons] count], 2U);
    NSButton* const reset = [[alert buttons] objectAtIndex:0];
    NSButton* const cancel = [[alert buttons] objectAtIndex:1];
    EXPECT_EQ(utf8([reset title]), "Reset All Shortcuts");
    EXPECT_TRUE([reset hasDestructiveAction]);
    EXPECT_EQ(utf8([reset keyEquivalent]), "");
    EXPECT_EQ(utf8([cancel title]), "Cancel");
    EXPECT_EQ(utf8([cancel keyEquivalent]), "\033");
    answer("Cancel");
    EXPECT_EQ(fakes::alertOver(window()), nil);
    EXPECT_THAT(person::texts(window()), Not(Contains("⌘⇧O")));
    press("Reset All Shortcuts");
    answer("Reset All Shortcuts");
    EXPECT_EQ(fakes::alertOver(window()), nil);
    EXPECT_THAT(person::texts(window()), Contains("⌘⇧O"));
}

TEST_F(PreferencesWindowTest, AThemeIsSavedUnderItsNameAndListed)
{
    open();
    chooseTab(layoutAppearanceTab);
    press("Save Current Theme");
    NSAlert* const alert = fakes::alertOver(window());
    ASSERT_NE(alert, nil);
    auto* const field = static_cast<NSTextField*>([alert accessoryView]);
    EXPECT_EQ(utf8([[field cell] placeholderString]), "Theme name");
    type(alert, @"Night");
    EXPECT_EQ(fakes::alertOver(window()), alert) << "typing asks nothing new";
    answer("Save");

    press("Manage Themes…");
    NSWindow* const sheet = fakes::sheetOver(window());
    ASSERT_NE(sheet, nil);
    EXPECT_THAT(person::texts(sheet), Contains("Themes"));
    EXPECT_THAT(person::texts(sheet), Contains("Night"));
    use(person::find<NSButton>(sheet, "Close"));
    EXPECT_EQ(fakes::sheetOver(window()), nil);
    EXPECT_FALSE([sheet isVisible]);
}

TEST_F(PreferencesWindowTest, AnEmptyListSaysSoAndEscapeClosesIt)
{
    open();
    chooseTab(layoutAppearanceTab);
    press("Manage Themes…");
    NSWindow* const sheet = fakes::sheetOver(window());
    ASSERT_NE(sheet, nil);
    EXPECT_THAT(person::texts(sheet),
                Contains("Save your current Layout appearance settings as a theme to reuse later."));
    [sheet cancelOperation:nil];
    desktop.drain();
    EXPECT_EQ(fakes::sheetOver(window()), nil);
}

TEST_F(PreferencesWindowTest, AnAlertLiesOverTheSheetThatAsks)
{
    open();
    chooseTab(layoutAppearanceTab);
    saveTheme(@"Night");
    press("Manage Themes…");
    NSWindow* const sheet = fakes::sheetOver(window());
    use(person::find<NSButton>(sheet, "Delete “Night”"));
    NSAlert* const alert = fakes::alertOver(sheet);
    ASSERT_NE(alert, nil);
    EXPECT_TRUE(fakes::answer(alert, "Delete"));
    desktop.drain();
    EXPECT_EQ(fakes::alertOver(sheet), nil);
    EXPECT_THAT(person::texts(sheet), Not(Contains("Night")));
}

TEST_F(PreferencesWindowTest, WhatLiesOverTheWindowGoesWithIt)
{
    open();
    chooseTab(layoutAppearanceTab);
    press("Reset to Defaults");
    NSWindow* const owner = window();
    ASSERT_NE(fakes::alertOver(owner), nil);
    controller.reset();
    EXPECT_EQ(fakes::alertOver(owner), nil);
}

// The program's own objects are counted after every test.
TEST_F(PreferencesWindowTest, NothingIsLeftOfAWindowThatHasGone)
{
    const Class classes[] = {[NSButton class],    [NSSlider class],    [NSSwitch class],    [NSPopUpButton class],
                             [NSTextField class], [NSTableView class], [NSScrollView class]};
    GSDebugAllocationActive(YES);
    std::vector<int> before;
    for (const Class each : classes) {
        before.push_back(GSDebugAllocationCount(each));
    }
    @autoreleasepool {
        open();
        for (NSInteger tab = 0; tab <= layoutsTab; ++tab) {
            chooseTab(tab);
        }
        EXPECT_GT(GSDebugAllocationCount(classes[0]), before[0]);
        controller.reset();
    }
    for (std::size_t index = 0; index < before.size(); ++index) {
        EXPECT_EQ(GSDebugAllocationCount(classes[index]), before[index]) << class_getName(classes[index]);
    }
}

TEST_F(PreferencesWindowTest, TheAboutWindowHasItsStyleAndTexts)
{
    const auto about = ui.createAboutWindow({"About Quorvel", "ColorLogoTransparent", "Quorvel", "Version 1.2.3"});
    EXPECT_EQ(person::window("About Quorvel"), nil);
    about->show();
    NSWindow* const shown = person::window("About Quorvel");
    ASSERT_NE(shown, nil);
    EXPECT_EQ([shown styleMask], 0x8003U);
    EXPECT_TRUE([shown isMovableByWindowBackground]);
    EXPECT_EQ(person::texts(shown), (std::vector<std::string>{"Quorvel", "Version 1.2.3"}));
    [shown cancelOperation:nil];
    EXPECT_EQ(person::window("About Quorvel"), nil);
}

} // namespace
} // namespace quorvel::macos
