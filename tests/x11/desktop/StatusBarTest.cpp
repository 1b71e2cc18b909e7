#include <set>

#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/desktop/X11StatusBar.h"
#include "x11/desktop/DesktopTest.h"

namespace quorvel::x11 {
namespace {

// Opens no menus, but remembers what it was asked.
class RecordingToolkit final : public ToolkitUi {
public:
    void openMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override
    {
        opened.push_back(menu);
        choose = std::move(onCommand);
    }

    std::size_t runAlert(const Alert&, const std::filesystem::path&) override { return 0; }
    std::unique_ptr<ToolkitWindow> createPreferencesWindow(PreferencesWindowModel&, ToolkitWindowCallbacks) override
    {
        return nullptr;
    }
    std::unique_ptr<ToolkitWindow> createAboutWindow(const AboutContent&) override { return nullptr; }

    void endInnerLoops() override {}

    std::vector<Menu> opened;
    std::function<void(MenuCommand)> choose;
};

class StatusBarTest : public DesktopTest {
protected:
    void SetUp() override
    {
        if (!xtest::SystemTray::isInstalled()) {
            GTEST_SKIP() << "needs trayer";
        }
    }

    std::unique_ptr<StatusItem> createItem()
    {
        auto item = statusBar.createItem();
        item->setImage({"MenuBarIcon", true});
        item->setMenu(menu, [this](MenuCommand command) { commands.push_back(command); });
        return item;
    }

    // The item's window in the tray, once it is there.
    xcb_window_t iconWindow()
    {
        loop.waitFor("the icon", [&] {
            const auto windows = ownWindows();
            return windows.size() == 1 && isOnDisplay(rectOf(windows.front()));
        });
        return ownWindows().front();
    }

    // Not so while the tray is finding its place.
    static bool isOnDisplay(const xtest::PixelRect& rect)
    {
        return rect.x >= 0 && rect.y >= 0 && rect.x + rect.width <= 1920 && rect.y + rect.height <= 1080;
    }

    std::set<std::uint32_t> colorsOf(xcb_window_t window)
    {
        const auto rect = rectOf(window);
        const xtest::Screenshot picture(display.client, rect);
        std::set<std::uint32_t> colors;
        for (int y = rect.y; y < rect.y + rect.height; ++y) {
            for (int x = rect.x; x < rect.x + rect.width; ++x) {
                colors.insert(picture.pixel(x, y));
            }
        }
        return colors;
    }

    void click(xcb_window_t window)
    {
        const auto rect = rectOf(window);
        display.keyboard.click(rect.x + rect.width / 2, rect.y + rect.height / 2);
    }

    RecordingToolkit toolkit;
    X11StatusBar statusBar{*connection, bundle, toolkit};
    const Menu menu{{MenuItem{"About Quorvel...", "", MenuCommand::showAbout}, std::nullopt,
                     MenuItem{"Quit", "q", MenuCommand::terminate}}};
    std::vector<MenuCommand> commands;
};

TEST_F(StatusBarTest, AnItemAppearsInARunningTray)
{
    const auto tray = startTray();
    const auto item = createItem();
    const auto icon = iconWindow();
    EXPECT_EQ(display.client.processOf(display.client.topLevelOf(icon)), tray->process());
    EXPECT_GE(rectOf(icon).height, 16);
}

TEST_F(StatusBarTest, AnItemAppearsAsSoonAsATrayRuns)
{
    const auto item = createItem();
    loop.drain();
    EXPECT_TRUE(ownWindows().empty());
    const auto tray = startTray();
    EXPECT_EQ(display.client.processOf(display.client.topLevelOf(iconWindow())), tray->process());
}

TEST_F(StatusBarTest, AnItemMovesToTheNextTray)
{
    auto tray = startTray();
    const auto item = createItem();
    iconWindow();
    tray.reset();
    loop.waitFor("the icon to go", [&] { return ownWindows().empty(); });
    tray = startTray();
    EXPECT_EQ(display.client.processOf(display.client.topLevelOf(iconWindow())), tray->process());
}

TEST_F(StatusBarTest, ADestroyedItemLeavesTheTray)
{
    const auto tray = startTray();
    auto item = createItem();
    iconWindow();
    item.reset();
    loop.waitFor("the icon to go", [&] { return ownWindows().empty(); });
}

TEST_F(StatusBarTest, AnItemShowsItsImage)
{
    const auto tray = startTray();
    const auto item = createItem();
    const auto icon = iconWindow();
    loop.waitFor("the picture", [&] { return colorsOf(icon).size() > 4; });
}

TEST_F(StatusBarTest, WhateverAnybodySaysOfItsSizeAnItemsPictureStaysSmall)
{
    const auto tray = startTray();
    const auto item = createItem();
    const auto icon = iconWindow();
    xcb_configure_notify_event_t event{};
    event.response_type = XCB_CONFIGURE_NOTIFY;
    event.event = event.window = icon;
    event.width = event.height = 20'000;
    xcb_send_event(display.client.connection(), 0, icon, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
    display.client.sync();
    loop.drain();
    // A picture of that size would be more than a request may hold, which ends a connection.
    EXPECT_EQ(xcb_connection_has_error(connection->xcb()), 0);
}

TEST_F(StatusBarTest, AnItemWithoutImageIsEmpty)
{
    const auto tray = startTray();
    const auto item = statusBar.createItem();
    const auto icon = iconWindow();
    loop.drain();
    EXPECT_EQ(colorsOf(icon).size(), 1U);
    item->setImage({"ColorLogoTransparent", false});
    loop.waitFor("the picture", [&] { return colorsOf(icon).size() > 20; });
}

TEST_F(StatusBarTest, AClickOpensTheMenuThatWasSetLast)
{
    const auto tray = startTray();
    const auto item = createItem();
    const auto icon = iconWindow();
    click(icon);
    loop.waitFor("the menu", [&] { return toolkit.opened.size() == 1; });
    EXPECT_EQ(toolkit.opened[0], menu);
    toolkit.choose(MenuCommand::terminate);
    EXPECT_EQ(commands, std::vector{MenuCommand::terminate});
    item->setMenu({{MenuItem{"Quit", "q", MenuCommand::terminate}}}, [](MenuCommand) {});
    click(icon);
    loop.waitFor("the menu", [&] { return toolkit.opened.size() == 2; });
    EXPECT_EQ(toolkit.opened[1].entries.size(), 1U);
}

TEST_F(StatusBarTest, AnItemWithoutMenuOpensNone)
{
    const auto tray = startTray();
    const auto item = statusBar.createItem();
    item->setImage({"MenuBarIcon", true});
    click(iconWindow());
    loop.drain();
    loop.drain();
    EXPECT_TRUE(toolkit.opened.empty());
}

TEST_F(StatusBarTest, AChoiceThatComesAfterTheItemWentIsDropped)
{
    const auto tray = startTray();
    auto item = createItem();
    click(iconWindow());
    loop.waitFor("the menu", [&] { return toolkit.opened.size() == 1; });
    item.reset();
    toolkit.choose(MenuCommand::terminate);
    EXPECT_TRUE(commands.empty());
}

} // namespace
} // namespace quorvel::x11
