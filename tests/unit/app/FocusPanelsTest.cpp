// Where the lists of the focus switcher go, and how they look.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "app/MainController.h"
#include "tests/unit/app/AppScreens.h"
#include "tests/unit/app/FocusSwitcherFixture.h"

namespace quorvel {
namespace {

class FocusPanelsTest : public FocusSwitcherFixture {
protected:
    ScreenRect allWindowsFrameAt(const char* position)
    {
        store("fsPopupPosition", position);
        open();
        const auto frame = allWindowsPanel()->frame;
        app.reset();
        return frame;
    }

    void minimizeAnother() { desktop.minimize(desktop.openWindow(editor, "Draft", {0, 0, 400, 300})); }

    static RoundedRectCommand plateOf(const OverlayWindowRecord& panel)
    {
        return std::get<RoundedRectCommand>(panel.content.commands.front());
    }
};

TEST_F(FocusPanelsTest, ThePositionNamesAnAnchorOfTheVisibleFrame)
{
    desktop.screens.connect({fixtures::leftDock}); // visible: 60 to 1440, 0 to 875
    const auto size = allWindowsFrameAt("center").size();
    EXPECT_EQ(allWindowsFrameAt("topLeft").origin(), (ScreenPoint{80, 855 - size.height}));
    EXPECT_EQ(allWindowsFrameAt("topRight").origin(), (ScreenPoint{1420 - size.width, 855 - size.height}));
    EXPECT_EQ(allWindowsFrameAt("bottomLeft").origin(), (ScreenPoint{80, 20}));
    EXPECT_EQ(allWindowsFrameAt("bottomRight").origin(), (ScreenPoint{1420 - size.width, 20}));
    EXPECT_EQ(allWindowsFrameAt("leading").x, 80);
    EXPECT_EQ(allWindowsFrameAt("trailing").maxX(), 1420);
    EXPECT_NEAR(allWindowsFrameAt("top").midX(), 750, 0.5);
    EXPECT_EQ(allWindowsFrameAt("top").maxY(), 855);
    EXPECT_EQ(allWindowsFrameAt("bottom").y, 20);
    EXPECT_NEAR(allWindowsFrameAt("leading").midY(), 437.5, 0.5);
}

TEST_F(FocusPanelsTest, AnUnknownPositionIsTheCentre)
{
    const auto centered = allWindowsFrameAt("center");
    EXPECT_NEAR(centered.midX(), 720, 0.5);
    EXPECT_NEAR(centered.midY(), 437.5, 0.5);
    EXPECT_EQ(allWindowsFrameAt("middle"), centered);
    store("fsPopupPosition", 4);
    open();
    EXPECT_EQ(allWindowsPanel()->frame, centered);
}

TEST_F(FocusPanelsTest, TheListsAreOnTheScreenWithTheKeyboardFocus)
{
    desktop.screens.connect({fixtures::primary, fixtures::right});
    desktop.moveWindow(window, {1600, 0, 800, 600});
    EXPECT_NEAR(allWindowsFrameAt("center").midX(), 2400, 0.5);
}

TEST_F(FocusPanelsTest, TheMinimizedListIsBelowTheOther)
{
    minimizeAnother();
    open();
    type(keyCodes::tab);
    type(keys::m);
    const auto all = allWindowsPanel()->frame;
    const auto minimized = minimizedPanel()->frame;
    EXPECT_LT(minimized.maxY(), all.minY());
    EXPECT_NEAR(minimized.midX(), all.midX(), 1.0);
}

TEST_F(FocusPanelsTest, AloneTheMinimizedListTakesThePositionItself)
{
    store("fsPopupPosition", "topRight");
    minimizeAnother();
    open();
    type(keys::m);
    EXPECT_EQ(minimizedPanel()->frame.maxX(), 1420);
    EXPECT_EQ(minimizedPanel()->frame.maxY(), 855);
}

TEST_F(FocusPanelsTest, LongListsStayOnTheScreen)
{
    openWindows(editor, 14);
    for (auto* each : openWindows(desktop.launch("Mail"), 10)) {
        each->title = "A title that goes on and on and on, as if there were no end to the width of any display at all";
        desktop.minimize(*each);
    }
    for (const char* position : {"center", "bottomRight", "topLeft", "trailing"}) {
        store("fsPopupPosition", position);
        open();
        type(keyCodes::tab);
        type(keys::m);
        const auto usable = fixtures::primary.visibleFrame.insetBy(20, 20);
        EXPECT_TRUE(usable.contains(allWindowsPanel()->frame)) << position;
        EXPECT_TRUE(usable.contains(minimizedPanel()->frame)) << position;
        app.reset();
    }
}

TEST_F(FocusPanelsTest, TheListsLetClicksThroughAndStandAboveTheLabels)
{
    minimizeAnother();
    open();
    for (const auto& each : {allWindowsPanel(), minimizedPanel()}) {
        EXPECT_TRUE(each->description.ignoresMouseEvents);
        EXPECT_EQ(each->description.collectionBehavior, 321U);
        EXPECT_FALSE(each->description.hasShadow);
        EXPECT_FALSE(each->clipsToBounds);
        EXPECT_EQ(each->kind, OverlayKind::window);
    }
    type(keyCodes::tab);
    EXPECT_EQ(desktop.overlayWindows.visible().front(), allWindowsPanel());
}

TEST_F(FocusPanelsTest, TheColoursAreThoseOfTheSwitcher)
{
    store("wsTextBackgroundColor", "#102030E0");
    store("wsBorderColor", "#405060");
    store("wsTextColor", "#708090");
    open();
    const auto panel = allWindowsPanel();
    EXPECT_EQ(plateOf(*panel).fill, Color::bytes(0x10, 0x20, 0x30, 0xE0));
    EXPECT_EQ(plateOf(*panel).stroke->color, Color::bytes(0x40, 0x50, 0x60));
    EXPECT_EQ(std::get<TextCommand>(panel->content.commands[1]).color, Color::bytes(0x70, 0x80, 0x90));
}

TEST_F(FocusPanelsTest, ATransparentLabelBackgroundLeavesTheListsReadable)
{
    open(); // the default background of labels is transparent
    EXPECT_EQ(plateOf(*allWindowsPanel()).fill, Color::black().withAlpha(0.87));
}

TEST_F(FocusPanelsTest, ColoursThatCannotBeReadAreReplaced)
{
    store("wsTextBackgroundColor", "night");
    store("wsBorderColor", "sky");
    open();
    EXPECT_EQ(plateOf(*allWindowsPanel()).fill, Color::black());
    EXPECT_EQ(plateOf(*allWindowsPanel()).stroke->color, desktop.systemColors.blue());
}

} // namespace
} // namespace quorvel
