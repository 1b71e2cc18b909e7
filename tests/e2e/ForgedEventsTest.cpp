#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "e2e/ModesTest.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

constexpr auto fired = "Activate overlay shortcut fired";

// Another program that sends what only the server may say.
class ForgedEventsReliability : public ModesTest {
protected:
    // Every window of the program that anybody can find, on the screen or not.
    std::vector<xcb_window_t> windowsOfProgram()
    {
        auto windows = rival.children(rival.root());
        std::erase_if(windows, [&](xcb_window_t each) { return rival.processOf(each) != quorvel->program().id(); });
        return windows;
    }

    template <class Event>
    void send(xcb_window_t window, const Event& event, std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT)
    {
        std::array<char, 32> bytes{};
        static_assert(sizeof(Event) <= bytes.size());
        std::memcpy(bytes.data(), &event, sizeof event);
        xcb_send_event(rival.connection(), 0, window, mask, bytes.data());
    }

    // To each window of the program, as if somebody had typed it while the program had grabbed the keyboard.
    void forgePress(xcb_keysym_t keysym, std::uint16_t state)
    {
        xcb_key_press_event_t event{};
        event.detail = display.keyboard.codeOf(keysym);
        event.root = event.event = rival.root();
        event.state = state;
        event.same_screen = 1;
        for (const auto window : windowsOfProgram()) {
            event.response_type = XCB_KEY_PRESS;
            send(window, event);
            event.response_type = XCB_KEY_RELEASE;
            send(window, event);
        }
        rival.sync();
    }

    void forgeMessage(xcb_window_t to, const std::string& type, const std::array<std::uint32_t, 5>& data)
    {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = to;
        event.type = rival.atom(type);
        std::ranges::copy(data, std::begin(event.data.data32));
        send(to, event);
    }

    // That the window has gone, has moved, is somebody else's now.
    void forgeEndOf(xcb_window_t window, xcb_window_t to)
    {
        xcb_destroy_notify_event_t destroyed{};
        destroyed.response_type = XCB_DESTROY_NOTIFY;
        destroyed.event = destroyed.window = window;
        send(to, destroyed);
        xcb_unmap_notify_event_t unmapped{};
        unmapped.response_type = XCB_UNMAP_NOTIFY;
        unmapped.event = unmapped.window = window;
        send(to, unmapped);
        xcb_configure_notify_event_t moved{};
        moved.response_type = XCB_CONFIGURE_NOTIFY;
        moved.event = moved.window = window;
        moved.x = moved.y = -32768;
        moved.width = moved.height = 65535;
        send(to, moved);
        xcb_selection_clear_event_t cleared{};
        cleared.response_type = XCB_SELECTION_CLEAR;
        cleared.owner = window;
        cleared.selection = rival.atom("_QUORVEL_S0");
        send(to, cleared);
    }

    xtest::XClient rival{display.server};
};

TEST_F(ForgedEventsReliability, AHotKeyThatNobodyTypedShowsNothing)
{
    ReliabilityRecord record("X11, the whole program", "another client sends forged presses of a hot key");
    start();
    const auto window = openWindow();
    record.tried();
    forgePress(XKB_KEY_o, XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT);
    forgePress(XKB_KEY_r, XCB_MOD_MASK_4 | XCB_MOD_MASK_1);
    work(Mode::overlay, window->id());
    EXPECT_EQ(linesOf(fired), 1);
    endCleanly();
    record.survived("");
}

TEST_F(ForgedEventsReliability, ALetterThatNobodyTypedPlacesNothing)
{
    ReliabilityRecord record("X11, the whole program", "another client sends forged letters to a mode");
    start();
    const auto window = openWindow();
    for (const Mode mode : allModes) {
        record.tried();
        enter(mode, window->id());
        const auto before = rectOf(window->id());
        for (const xcb_keysym_t key : {XKB_KEY_Right, XKB_KEY_a, XKB_KEY_Escape}) {
            forgePress(key, 0);
        }
        EXPECT_FALSE(quorvel->overlayRects().empty());
        leave();
        EXPECT_EQ(rectOf(window->id()), before);
        work(mode, window->id());
        record.survived("");
    }
    EXPECT_EQ(linesOf("Blocker blocked key: 0"), 1); // the A of the overlay, typed once
    endCleanly();
}

// Also the loss of the claim on the display, which ends the program when it is real.
TEST_F(ForgedEventsReliability, WhatOnlyTheServerMayTellIsNotBelieved)
{
    ReliabilityRecord record("X11, the whole program", "another client sends forged ends of windows and of the claim");
    start();
    const auto window = openWindow();
    for (const Mode mode : allModes) {
        record.tried();
        enter(mode, window->id());
        auto shown = windowsOfProgram();
        for (const auto to : shown) {
            forgeEndOf(window->id(), to);
            forgeEndOf(to, to);
            forgeEndOf(rival.root(), to);
        }
        rival.sync();
        leave();
        work(mode, window->id());
        record.survived("");
    }
    endCleanly();
}

TEST_F(ForgedEventsReliability, MessagesOfStrangersChangeNothing)
{
    ReliabilityRecord record("X11, the whole program", "another client sends messages meant for other programs");
    start();
    const auto window = openWindow();
    for (const Mode mode : allModes) {
        record.tried();
        enter(mode, window->id());
        const auto before = rectOf(window->id());
        auto windows = windowsOfProgram();
        windows.push_back(rival.root());
        for (const auto to : windows) {
            forgeMessage(to, "WM_PROTOCOLS", {rival.atom("WM_DELETE_WINDOW"), 0, 0, 0, 0});
            forgeMessage(to, "MANAGER", {0, rival.atom("_NET_SYSTEM_TRAY_S0"), 0xFFFFFF, 0, 0});
            forgeMessage(to, "MANAGER", {0, rival.atom("_XSETTINGS_S0"), 0xFFFFFF, 0, 0});
            forgeMessage(to, "_XEMBED", {0, 0, 0, 0, 0});
            forgeMessage(to, "_NET_WM_STATE", {1, rival.atom("_NET_WM_STATE_HIDDEN"), 0, 2, 0});
            xcb_selection_request_event_t request{};
            request.response_type = XCB_SELECTION_REQUEST;
            request.owner = to;
            request.requestor = window->id();
            request.selection = rival.atom("_QUORVEL_S0");
            request.target = rival.atom("TARGETS");
            request.property = XCB_ATOM_PRIMARY;
            send(to, request);
        }
        rival.sync();
        EXPECT_FALSE(quorvel->overlayRects().empty());
        leave();
        EXPECT_EQ(rectOf(window->id()), before);
        work(mode, window->id());
        record.survived("");
    }
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
