#pragma once

#include <memory>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "x11/keys/KeysDisplay.h"

namespace quorvel::x11 {

// A tap that drops every key of its set.
class EventTapsFixture : public testing::Test {
protected:
    EventTapsFixture()
    {
        tap->createRunLoopSource();
        tap->addSourceToRunLoop();
        tap->setEnabled(true);
    }

    void expectSeen(const std::vector<KeyCode>& keyCodes)
    {
        desktop.waitFor("keys at the tap", [&] { return seen.size() >= keyCodes.size(); });
        EXPECT_EQ(seen, keyCodes);
    }

    // The window has the keyboard: what is typed now arrives there, after everything that was typed before.
    void expectOnlyArrives(const std::vector<xcb_keysym_t>& before, xcb_keysym_t last)
    {
        desktop.display.keyboard.tap(last);
        desktop.window.waitForPress(desktop.codeOf(last));
        std::vector<std::uint8_t> codes;
        for (const auto keysym : before) {
            codes.push_back(desktop.codeOf(keysym));
        }
        codes.push_back(desktop.codeOf(last));
        EXPECT_EQ(desktop.pressesInWindow(), codes);
    }

    bool isKeyboardFree() { return desktop.display.grabs.isKeyboardFree(); }

    KeysDisplay desktop;
    xtest::KeyInjector& keys = desktop.display.keyboard;
    std::vector<KeyCode> seen;
    std::vector<KeyEvent> events;
    std::unique_ptr<EventTap> tap =
        desktop.adapters.eventTaps.createTap({.eventMask = keyDownEventMask}, [this](const TapEvent& event) {
            seen.push_back(event.keyCode());
            events.push_back(*event.keyEvent());
            return TapDecision::drop;
        });
};

} // namespace quorvel::x11
