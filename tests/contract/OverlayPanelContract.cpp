#include <memory>
#include <string>
#include <vector>

#include "contract/ContractTest.h"
#include "platform/EventMonitors.h"
#include "platform/OverlayWindows.h"
#include "platform/Workspace.h"

namespace quorvel::contract {
namespace {

constexpr KeyCode keyB = 11;

class OverlayPanelContract : public ContractTest {
protected:
    // Shows the panel and gives it the keyboard.
    void show()
    {
        panel->orderFrontRegardless();
        workspace.activateSelf();
        panel->makeKey();
        ASSERT_TRUE(desktop->waitUntil([&] { return panel->isKey(); }));
    }

    bool hears(const std::vector<KeyCode>& keys)
    {
        return desktop->waitUntil([&] { return codes() == keys; });
    }

    std::vector<KeyCode> codes() const
    {
        std::vector<KeyCode> result;
        result.reserve(heard.size());
        for (const auto& each : heard) {
            result.push_back(each.keyCode);
        }
        return result;
    }

    std::vector<KeyEvent> heard;
    ContractWindow editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    Workspace& workspace = port(&ContractPorts::workspace);
    std::unique_ptr<OverlayPanel> panel =
        port(&ContractPorts::overlayWindows)
            .createPanel({.contentRect = {0.0, 0.0, 800.0, 600.0}, .level = windowLevels::floating},
                         [this](const KeyEvent& event) { heard.push_back(event); });
};

TEST_F(OverlayPanelContract, ANewPanelHasNoKeyboard)
{
    EXPECT_FALSE(panel->isKey());
    EXPECT_FALSE(panel->isVisible());

    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{keyB}; }));
    EXPECT_TRUE(heard.empty());
}

TEST_F(OverlayPanelContract, AKeyPanelHearsKeysAndTheApplicationDoesNot)
{
    show();

    desktop->pressKey(keyB);
    desktop->pressKey(keyB, eventFlags::shift);

    ASSERT_TRUE(hears({keyB, keyB}));
    EXPECT_EQ(heard[0].characters, "b");
    EXPECT_EQ(heard[0].flags & eventFlags::deviceIndependentMask, 0U);
    EXPECT_EQ(heard[1].characters, "B");
    EXPECT_EQ(heard[1].flags & eventFlags::deviceIndependentMask, eventFlags::shift);
    desktop->settle();
    EXPECT_TRUE(desktop->keysReceivedBy(editor).empty());
}

TEST_F(OverlayPanelContract, APanelThatIsOrderedOutGivesTheKeyboardBackToTheActivatedApplication)
{
    show();

    panel->orderOut();
    workspace.activate(editor.process);
    EXPECT_FALSE(panel->isKey());
    desktop->settle();
    ASSERT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));
    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{keyB}; }));
    EXPECT_TRUE(heard.empty());
}

TEST_F(OverlayPanelContract, APanelCanBeKeyAgain)
{
    show();
    panel->orderOut();
    workspace.activate(editor.process);
    desktop->settle();
    ASSERT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));

    show();
    desktop->pressKey(keyB);

    EXPECT_TRUE(hears({keyB}));
}

TEST_F(OverlayPanelContract, AClosedPanelHasNoKeyboard)
{
    show();

    panel->close();

    EXPECT_FALSE(panel->isKey());
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(OverlayPanelContract, ADestroyedPanelHearsNothing)
{
    show();
    panel.reset();
    workspace.activate(editor.process);
    desktop->settle();
    ASSERT_TRUE(desktop->waitUntil([&] { return desktop->isFocused(editor); }));

    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{keyB}; }));
    EXPECT_TRUE(heard.empty());
}

} // namespace
} // namespace quorvel::contract
