#include <gtest/gtest.h>

#include "platform/x11/keys/XcbXkb.h"
#include "support/ChildProcess.h"
#include "x11/keys/KeysDisplay.h"

namespace quorvel::x11 {
namespace {

class KeyboardTest : public testing::Test {
protected:
    void switchToLayout(unsigned layout)
    {
        xcb_xkb_latch_lock_state(desktop.connection->xcb(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1,
                                 static_cast<std::uint8_t>(layout), 0, 0, 0);
    }

    void expectCharacters(KeyCode keyCode, const std::string& characters)
    {
        desktop.waitFor("the key to type " + characters,
                        [&] { return desktop.adapters.keyboardLayout.characters(keyCode) == characters; });
    }

    KeysDisplay desktop;
};

TEST_F(KeyboardTest, ALoadedMapIsFollowed)
{
    expectCharacters(16, "y");
    desktop.run({"setxkbmap", "de"});
    expectCharacters(16, "z");
    desktop.run({"setxkbmap", "ru"});
    expectCharacters(11, "и");
}

TEST_F(KeyboardTest, ASwitchBetweenTwoLayoutsIsFollowed)
{
    desktop.run({"setxkbmap", "us,ru"});
    expectCharacters(11, "b");
    switchToLayout(1);
    expectCharacters(11, "и");
    switchToLayout(0);
    expectCharacters(11, "b");
}

TEST_F(KeyboardTest, AKeyPressedRightAfterAMapWasLoadedIsReadByThatMap)
{
    const auto code = desktop.codeOf(XKB_KEY_y);
    std::string typed;
    const auto watching = desktop.connection->addEventHandler(
        XCB_KEY_PRESS, [&](const auto&) { typed = desktop.adapters.keyboardLayout.characters(16); });
    const auto grab = desktop.adapters.hotKeys.registerHotKey(16, hotKeyModifiers::control, {1, 1});
    ASSERT_EQ(grab.status, osStatus::success);
    // Nothing is handled before the key comes, too.
    xtest::ChildProcess load({{"setxkbmap", "de"}, desktop.display.server.clientEnvironment()});
    ASSERT_EQ(load.waitForEnd(), 0);
    desktop.display.keyboard.tapCode({xtest::KeyInjector::Modifier::control}, code);
    desktop.connection->sync();
    desktop.connection->dispatchEvents();
    EXPECT_EQ(typed, "z");
}

TEST_F(KeyboardTest, TheLayoutThatIsOnAtTheStartIsKnown)
{
    desktop.run({"setxkbmap", "us,ru"});
    switchToLayout(1);
    desktop.connection->sync();
    const auto second = Keyboard::open(*desktop.connection, desktop.loop.mainLoop());
    EXPECT_EQ(X11KeyboardLayout(**second).characters(11), "и");
}

} // namespace
} // namespace quorvel::x11
