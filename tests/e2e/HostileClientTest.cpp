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

// What a window says of its size, and whether it may have the size that the whole screen's frame came to.
struct Shape {
    PixelRect limits{}; // least width and height, greatest width and height
    int increment = 0;
    bool isSquare = false;
    bool (*bears)(const PixelRect& inner, const PixelRect& outer) = nullptr;
};

constexpr int step = 97;

constexpr std::array shapes = {
    Shape{.increment = step,
          .bears =
              [](const PixelRect& inner, const PixelRect& outer) {
                  return inner.width % step == 0 && inner.height % step == 0 && outer.width <= 1920 &&
                         outer.width > 1920 - step && outer.height <= 1080 && outer.height > 1080 - step;
              }},
    Shape{.limits = {3000, 2000, 0, 0},
          .bears = [](const PixelRect& inner,
                      const PixelRect& /*outer*/) { return inner.width == 3000 && inner.height == 2000; }},
    Shape{.limits = {0, 0, 500, 400},
          .bears = [](const PixelRect& inner,
                      const PixelRect& /*outer*/) { return inner.width == 500 && inner.height == 400; }},
    Shape{.limits = {450, 350, 450, 350},
          .bears = [](const PixelRect& inner,
                      const PixelRect& /*outer*/) { return inner.width == 450 && inner.height == 350; }},
    Shape{.isSquare = true,
          .bears =
              [](const PixelRect& inner, const PixelRect& outer) {
                  return inner.width == inner.height && (outer.width == 1920 || outer.height == 1080);
              }},
};

TEST_F(HostileClientReliability, OneWithLimitsStandsAtTheCornerOfItsFrameAsLargeAsItBears)
{
    ReliabilityRecord record(desktop, "a window with increments, a least, a greatest or a fixed size, or an aspect");
    start();
    for (const auto& shape : shapes) {
        record.tried();
        TestWindow window(display.server, {.rect = {300, 200, 450, 350},
                                           .sizeLimits = shape.limits,
                                           .widthIncrement = shape.increment,
                                           .heightIncrement = shape.increment});
        if (shape.isSquare) {
            constexpr std::uint32_t aspectFlag = 1U << 7U;
            window.client().setProperty(window.id(), "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS,
                                        {aspectFlag, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0});
        }
        window.map();
        display.client.activate(window.id());
        showOverlay(fullScreen);
        display.keyboard.tap(XKB_KEY_a);
        const auto stands = [&] {
            const auto outer = rectOf(window.id());
            return outer.x == 0 && outer.y == 0 &&
                   shape.bears(display.client.clientRect(window.id()).value_or(PixelRect()), outer);
        };
        display.client.waitFor("the window at the corner of its frame, as large as it bears", stands);
        quorvel->waitUntilIdle();
        workAnew(Mode::overlay);
        EXPECT_TRUE(stands());
        display.client.activate(window.id());
        work(Mode::switcher, window.id());
        work(Mode::moveResize, window.id());
        record.survived("the window at its frame's corner, of a size that it bears");
    }
    endCleanly();
}

TEST_F(HostileClientReliability, OneThatMovesItselfBackWins)
{
    ReliabilityRecord record(desktop, "a window that moves itself back each time");
    start();
    const auto window = openWindow({1100, 600, 500, 400}); // whose edges attract none of the other windows
    const auto id = window->id();
    const auto home = rectOf(id);
    int asked = 0;
    bool hasGone = false;
    xtest::XClient stubborn(display.server);
    const auto request = stubborn.atom("_NET_MOVERESIZE_WINDOW");
    stubborn.observeEvents([&](const xcb_generic_event_t& event) {
        const auto type = event.response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
            asked += message.type == request && message.window == id ? 1 : 0;
        } else if (type == XCB_CONFIGURE_NOTIFY && stubborn.outerRect(id) != home) {
            hasGone = true;
            const std::array<std::uint32_t, 4> values{1100, 600, 500, 400};
            xcb_configure_window(stubborn.connection(), id,
                                 XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                     XCB_CONFIG_WINDOW_HEIGHT,
                                 values.data());
            xcb_flush(stubborn.connection());
        }
    });
    for (const Mode mode : {Mode::overlay, Mode::moveResize}) {
        record.tried();
        asked = 0;
        hasGone = false;
        display.client.activate(id);
        enter(mode, id);
        display.keyboard.tap(mode == Mode::overlay ? XKB_KEY_a : XKB_KEY_Right);
        stubborn.waitFor("the window to have gone and to be home", [&] { return hasGone && rectOf(id) == home; });
        leave();
        workAnew(mode);
        stubborn.waitFor("the window at home", [&] { return rectOf(id) == home; });
        EXPECT_THAT(asked, testing::AllOf(testing::Ge(1), testing::Le(3)));
        record.survived("the window where its program wants it");
    }
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

// Most of a program's windows are parts of others. With more on top the window manager itself takes its time.
TEST_F(HostileClientReliability, AThousandWindowsAreNoReasonToStop)
{
    ReliabilityRecord record(desktop, "a client with 1,000 windows, 250 of them top-level");
    constexpr int topLevels = 250;
    constexpr int inEach = 3;
    display.windowManager().stop();
    xtest::XClient crowd(display.server);
    auto* link = crowd.connection();
    const auto create = [&](xcb_window_t parent, int x, int y) {
        const auto window = xcb_generate_id(link);
        xcb_create_window(link, XCB_COPY_FROM_PARENT, window, parent, static_cast<std::int16_t>(x),
                          static_cast<std::int16_t>(y), 200, 150, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    };
    for (int i = 0; i < topLevels; ++i) {
        const auto window = create(crowd.root(), i % 40 * 40, i / 40 * 30);
        for (int inner = 0; inner < inEach; ++inner) {
            create(window, 0, 0);
        }
        xcb_map_subwindows(link, window);
        xcb_map_window(link, window);
    }
    crowd.sync();
    display.windowManager().restart();
    display.client.waitFor("all to be managed", [&] { return display.client.managedWindows().size() == topLevels; });
    start();
    for (const Mode mode : allModes) {
        record.tried();
        workAnew(mode);
        record.survived("");
    }
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
