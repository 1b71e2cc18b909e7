#include "e2e/TrayMenu.h"

#include <optional>

namespace quorvel::e2e {

xtest::PixelRect TrayMenu::iconOf(RunningQuorvel& quorvel)
{
    std::optional<xtest::PixelRect> icon;
    display.client.waitFor("the icon in the tray",
                           [&] { return (icon = tray.iconOf(quorvel.program().id())).has_value(); });
    return *icon;
}

void TrayMenu::waitForIcon(RunningQuorvel& quorvel)
{
    iconOf(quorvel);
}

void TrayMenu::choose(Entry entry, RunningQuorvel& quorvel)
{
    const auto icon = iconOf(quorvel);
    bool hasKeyboard = false;
    display.client.observeEvents([&](const xcb_generic_event_t& event) {
        // A grab takes the focus from whoever has it, in a way that the event tells.
        hasKeyboard =
            hasKeyboard || ((event.response_type & 0x7FU) == XCB_FOCUS_OUT &&
                            reinterpret_cast<const xcb_focus_out_event_t&>(event).mode == XCB_NOTIFY_MODE_GRAB);
    });
    display.keyboard.click(icon.x + icon.width / 2, icon.y + icon.height / 2);
    display.client.waitFor("the menu to take the keyboard", [&] { return hasKeyboard; });
    display.client.observeEvents(nullptr);
    for (int row = 0; row <= static_cast<int>(entry); ++row) {
        display.keyboard.tap(XKB_KEY_Down);
    }
    display.keyboard.tap(XKB_KEY_Return);
}

} // namespace quorvel::e2e
