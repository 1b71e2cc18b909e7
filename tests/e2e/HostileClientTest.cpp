#include <array>
#include <csignal>
#include <limits>

#include "e2e/ModesTest.h"
#include "support/ClientProcess.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;
using xtest::TestWindow;

constexpr auto desktop = "X11, the whole program";

std::string repeated(const std::string& text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

// Clients whose windows are not as they should be.
class HostileClientReliability : public ModesTest {
protected:
    std::unique_ptr<TestWindow> open(const TestWindow::Options& options)
    {
        auto window = std::make_unique<TestWindow>(display.server, options);
        window->map();
        display.client.activate(window->id());
        return window;
    }

    // Every mode with the window, and with another one afterwards.
    void tryAllModes(ReliabilityRecord& record, xcb_window_t window)
    {
        for (const Mode mode : allModes) {
            record.tried();
            display.client.activate(window);
            work(mode, window);
            workAnew(mode);
            record.survived("");
        }
    }
};

TEST_F(HostileClientReliability, OneThatAnswersNothingIsPlacedChosenAndMoved)
{
    ReliabilityRecord record(desktop, "a client that answers nothing (SIGSTOP)");
    start();
    const xtest::ClientProcess hung(display.server, display.client, xtest::ClientProcess::Kind::plain, "Hung");
    kill(hung.process(), SIGSTOP);
    tryAllModes(record, hung.window());
    kill(hung.process(), SIGCONT);
    endCleanly();
}

TEST_F(HostileClientReliability, OneThatNamesNoProcessClassOrTitle)
{
    ReliabilityRecord record(desktop, "a window without _NET_WM_PID, WM_CLASS and title");
    start();
    auto window = std::make_unique<TestWindow>(display.server, TestWindow::Options{.type = ""});
    for (const auto& name : {"_NET_WM_PID", "WM_CLASS", "_NET_WM_NAME", "WM_NAME"}) {
        xcb_delete_property(window->client().connection(), window->id(), window->client().atom(name));
    }
    window->map();
    tryAllModes(record, window->id());
    endCleanly();
}

// Every property that is read of a window, filled with what makes no sense.
TEST_F(HostileClientReliability, OneWhosePropertiesMakeNoSense)
{
    ReliabilityRecord record(desktop,
                             "a window whose properties are of the wrong type, too short or beyond all bounds");
    start();
    const auto window = openWindow();
    const std::vector<std::vector<std::uint32_t>> contents = {
        {}, {0}, std::vector<std::uint32_t>(5000, std::numeric_limits<std::uint32_t>::max()), {0x7FFFFFFF, 0x80000000}};
    for (const auto& values : contents) {
        record.tried();
        for (const auto* name : {"_NET_WM_PID", "WM_NORMAL_HINTS", "_NET_WM_WINDOW_TYPE", "WM_CLASS", "_NET_WM_NAME",
                                 "WM_NAME", "_NET_WM_USER_TIME", "WM_TRANSIENT_FOR", "_GTK_FRAME_EXTENTS"}) {
            window->client().setProperty(window->id(), name, XCB_ATOM_CARDINAL, values);
        }
        window->client().sync();
        for (const Mode mode : {Mode::overlay, Mode::switcher}) {
            display.client.activate(window->id());
            enter(mode, window->id());
            display.keyboard.tap(XKB_KEY_a);
            quorvel->waitUntilIdle();
            workAnew(mode);
        }
        record.survived("");
    }
    endCleanly();
}

TEST_F(HostileClientReliability, OneWithLimitsStandsAtTheCornerOfItsFrame)
{
    ReliabilityRecord record(desktop, "a window with increments, a least, a greatest or a fixed size, or an aspect");
    start();
    struct Shape {
        PixelRect limits; // least width and height, greatest width and height
        int increment = 0;
        std::array<std::uint32_t, 4> aspect{};
    };
    const std::array<Shape, 5> shapes = {Shape{{}, 97, {}}, Shape{{3000, 2000, 0, 0}, 0, {}},
                                         Shape{{0, 0, 500, 400}, 0, {}}, Shape{{450, 350, 450, 350}, 0, {}},
                                         Shape{{}, 0, {1, 1, 1, 1}}};
    for (const auto& shape : shapes) {
        record.tried();
        TestWindow window(display.server, {.rect = {300, 200, 450, 350},
                                           .sizeLimits = shape.limits,
                                           .widthIncrement = shape.increment,
                                           .heightIncrement = shape.increment});
        if (shape.aspect[0] != 0) {
            constexpr std::uint32_t aspectFlag = 1U << 7U;
            window.client().setProperty(window.id(), "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS,
                                        {aspectFlag, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, shape.aspect[0], shape.aspect[1],
                                         shape.aspect[2], shape.aspect[3], 0, 0, 0});
        }
        window.map();
        display.client.activate(window.id());
        showOverlay(fullScreen);
        display.keyboard.tap(XKB_KEY_a);
        display.client.waitFor("the window at the corner of its frame", [&] {
            const auto rect = rectOf(window.id());
            return rect.x == 0 && rect.y == 0;
        });
        quorvel->waitUntilIdle();
        workAnew(Mode::overlay);
        record.survived("the window at its frame's corner, of a size that it bears");
    }
    endCleanly();
}

TEST_F(HostileClientReliability, OneThatMovesItselfBackWins)
{
    ReliabilityRecord record(desktop, "a window that moves itself back each time");
    start();
    const auto window = openWindow({300, 200, 500, 400});
    const auto home = rectOf(window->id());
    int moves = 0;
    xcb_window_t id = window->id();
    xtest::XClient stubborn(display.server);
    stubborn.observeEvents([&](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) != XCB_CONFIGURE_NOTIFY) {
            return;
        }
        const auto& configured = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (configured.window == id && (configured.width != 500 || configured.height != 400)) {
            ++moves;
            const std::array<std::uint32_t, 4> values{300, 200, 500, 400};
            xcb_configure_window(stubborn.connection(), id,
                                 XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                     XCB_CONFIG_WINDOW_HEIGHT,
                                 values.data());
            xcb_flush(stubborn.connection());
        }
    });
    record.tried();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    stubborn.waitFor("the window to have gone home",
                     [&] { return moves > 0 && stubborn.outerRect(id).value_or(PixelRect()).width == home.width; });
    quorvel->waitUntilIdle();
    workAnew(Mode::overlay);
    record.survived("the window where its program wants it");
    endCleanly();
}

TEST_F(HostileClientReliability, TitlesOfAnyKindAreShownAndNeverBreakALine)
{
    ReliabilityRecord record(desktop, "titles of 100,000 characters, invalid UTF-8, right-to-left, emoji, orders to a "
                                      "terminal");
    writeSettings("<key>showWindowInfo</key><true/>");
    start();
    const std::array titles = {repeated("W", 100'000),
                               repeated("👩‍👩‍👧‍👦", 4'000),
                               repeated("\xCC\x81", 30'000),
                               std::string("\xFF\xC0\x80\xED\xA0\x80 broken \xF4\x90\x80\x80"),
                               std::string("שלום עולם \u202E مرحبا \u2066 mixed"),
                               std::string("🪟👩‍🚀🏳️‍🌈 e\u0301"),
                               std::string("first\nFailed to forge a line\r\x1B[2J\x1B]0;owned\x07")};
    const auto other = openWindow({900, 400, 400, 300});
    const auto window = openWindow();
    for (const auto& title : titles) {
        record.tried();
        window->setTitle(title);
        quorvel->pressSwitcherHotKey();
        quorvel->waitForOverlayWindows(4);
        display.keyboard.tap(XKB_KEY_Tab);
        quorvel->waitForOverlayWindows(5);
        display.keyboard.tap(XKB_KEY_Tab);
        quorvel->waitForOverlayWindows(4);
        display.keyboard.tap(XKB_KEY_a);
        quorvel->waitUntilIdle();
        work(Mode::overlay, window->id());
        record.survived("");
    }
    for (const auto& line : quorvel->program().outputLines()) {
        EXPECT_EQ(line.find_first_of("\r\x1B\x07"), std::string::npos);
        EXPECT_NE(line.substr(0, 6), "Failed");
    }
    endCleanly();
}

// One client with a thousand windows, a hundred of them top-level; the first 25 of those get letters.
TEST_F(HostileClientReliability, AThousandWindowsAreNoReasonToStop)
{
    ReliabilityRecord record(desktop, "a client with 1,000 windows, 100 of them top-level");
    display.windowManager().stop();
    xtest::XClient crowd(display.server);
    auto* link = crowd.connection();
    for (int i = 0; i < 100; ++i) {
        const auto window = xcb_generate_id(link);
        xcb_create_window(link, XCB_COPY_FROM_PARENT, window, crowd.root(), static_cast<std::int16_t>(i % 40 * 40),
                          static_cast<std::int16_t>(i / 40 * 30), 200, 150, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        for (int inner = 0; inner < 9; ++inner) {
            xcb_create_window(link, XCB_COPY_FROM_PARENT, xcb_generate_id(link), window, 0, 0, 20, 20, 0,
                              XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        }
        xcb_map_window(link, window);
    }
    crowd.sync();
    display.windowManager().restart();
    display.client.waitFor("all to be managed", [&] { return display.client.managedWindows().size() == 100; });
    start();
    for (const Mode mode : {Mode::overlay, Mode::switcher}) {
        record.tried();
        workAnew(mode);
        record.survived("");
    }
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
