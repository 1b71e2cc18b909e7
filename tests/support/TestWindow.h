#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>
#include <xcb/xcb.h>

#include "support/XClient.h"

namespace quorvel::xtest {

// A window of the test process with a connection of its own, so that it can vanish like a program that dies.
class TestWindow {
public:
    struct Options {
        std::string title = "Window";
        std::string instance = "window";
        std::string className = "Window";
        std::optional<pid_t> process{};     // _NET_WM_PID; the server itself knows the test's process
        PixelRect rect{100, 100, 400, 300}; // of the client, with a user's position, so window managers keep it
        std::string type = "_NET_WM_WINDOW_TYPE_NORMAL"; // empty: none
        std::optional<xcb_window_t> transientFor{};
        std::vector<std::string> states{}; // _NET_WM_STATE before mapping
        PixelRect sizeLimits{};            // least width and height in x and y, greatest in width and height; 0: none
        int widthIncrement = 0;
        int heightIncrement = 0;
        bool overrideRedirect = false;
        bool decorated = true;
        std::uint32_t color = 0x6C7A89;
    };

    TestWindow(const XServer& server, const Options& options);
    TestWindow(const TestWindow&) = delete;
    ~TestWindow();

    TestWindow& operator=(const TestWindow&) = delete;

    xcb_window_t id() const { return window; }

    void map();
    void unmap();
    void iconify();

    // Closes the connection: the window vanishes as if its program had died.
    void vanish();

    void setTitle(const std::string& title);
    void setState(const std::string& state, bool present);
    void moveItself(int x, int y);
    void resizeItself(int width, int height);

    struct Key {
        bool pressed;
        std::uint8_t code;
        std::uint16_t state;
    };

    // What has been typed into this window so far.
    const std::vector<Key>& keys();

    // Waits until the window has received a press of the key code.
    void waitForPress(std::uint8_t code);

    // The window's own connection, for tests that let it misbehave.
    XClient& client() { return *connection; }

private:
    void describe(const Options& options);

    std::unique_ptr<XClient> connection;
    xcb_window_t window = XCB_NONE;
    std::vector<Key> received;
};

} // namespace quorvel::xtest
