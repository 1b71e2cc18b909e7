#include <algorithm>
#include <cstring>
#include <string_view>

#include <fmt/format.h>

#include "e2e/InterposedTest.h"
#include "support/Patience.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

using xtest::Interposer;
using xtest::PixelRect;

enum class Act { unmap, destroy, reparent };

struct Case {
    Mode mode;
    Act act;
};

const char* verbOf(Act act)
{
    switch (act) {
    case Act::unmap:
        return "unmaps";
    case Act::destroy:
        return "destroys";
    case Act::reparent:
        return "reparents";
    }
    throw xtest::HarnessError("unknown act");
}

constexpr std::uint8_t queryTree = 15;
constexpr std::uint8_t getProperty = 20;

constexpr std::string_view noOverlay = "Frontmost element invalid; cannot show overlay";
constexpr std::string_view nothingPlaced = "Window is gone; nothing was placed";
constexpr std::string_view nothingToMove = "No valid frontmost window to move/resize";

// Which of the lines it is, or none, depends on the moment.
std::string seenIn(Mode mode)
{
    switch (mode) {
    case Mode::overlay:
        return fmt::format("“{}”, “{}” or a window in its place", noOverlay, nothingPlaced);
    case Mode::moveResize:
        return fmt::format("“{}”, or the frame goes with its window", nothingToMove);
    case Mode::switcher:
        return "";
    }
    throw xtest::HarnessError("unknown mode");
}

constexpr PixelRect victimRect{300, 250, 500, 400};

// A client that does it to its window between two requests of the program: between any two that have to do with it, one
// after the other.
class BetweenRequestsReliability : public InterposedTest, public testing::WithParamInterface<Case> {
protected:
    // Whether a request names the window or its frame, or asks the root what windows there are.
    static bool concerns(Interposer::Request request, xcb_window_t window, xcb_window_t frame, xcb_window_t root)
    {
        const bool asksRoot = request[0] == queryTree || request[0] == getProperty;
        for (std::size_t offset = 4; offset + 4 <= request.size(); offset += 4) {
            xcb_window_t named = XCB_NONE;
            std::memcpy(&named, request.data() + offset, sizeof named);
            if (named == window || named == frame || (asksRoot && named == root)) {
                return true;
            }
        }
        return false;
    }

    // Does it, and lets the window manager see it before the program goes on.
    void perform(Act act, xcb_window_t window)
    {
        auto* link = hand.connection();
        switch (act) {
        case Act::unmap:
            xcb_unmap_window(link, window);
            break;
        case Act::destroy:
            xcb_destroy_window(link, window);
            break;
        case Act::reparent:
            xcb_reparent_window(link, window, hiding.id(), 5, 5);
            break;
        }
        hand.waitFor("the window manager to see it",
                     [&] { return std::ranges::count(hand.managedWindows(), window) == 0; });
    }

    void expectOneLineWhereNothingWasDone(Mode mode)
    {
        const auto lines = newLines();
        const auto told = std::ranges::count_if(lines, [](const std::string& line) {
            return line == noOverlay || line == nothingPlaced || line == nothingToMove;
        });
        const bool hasWritten =
            std::ranges::any_of(lines, [](const std::string& line) { return line.starts_with("window position: "); });
        EXPECT_LE(told, 1);
        EXPECT_TRUE(mode != Mode::overlay || told == 1 || hasWritten) << testing::PrintToString(lines);
    }

    void pressKeysOf(Mode mode)
    {
        switch (mode) {
        case Mode::overlay:
            quorvel->pressHotKey();
            settle();
            display.keyboard.tap(XKB_KEY_a);
            break;
        case Mode::switcher:
            quorvel->pressSwitcherHotKey();
            settle();
            display.keyboard.tap(XKB_KEY_a);
            break;
        case Mode::moveResize:
            display.keyboard.tap({xtest::KeyInjector::Modifier::command, xtest::KeyInjector::Modifier::option},
                                 XKB_KEY_r);
            settle();
            display.keyboard.tap(XKB_KEY_Right);
            break;
        }
        settle();
        display.keyboard.tap(XKB_KEY_Escape);
        settle();
    }

    xtest::XClient hand{display.server};
    xtest::TestWindow hiding{display.server, {.overrideRedirect = true}}; // never mapped
};

TEST_P(BetweenRequestsReliability, WhateverTheMomentTheKeyboardIsFreeAndTheOthersAreWhereTheyWere)
{
    const auto [mode, act] = GetParam();
    ReliabilityRecord record(
        "X11, the whole program",
        fmt::format("a client {} its window before each request about it, in turn ({})", verbOf(act), nameOf(mode)));
    startInterposed();
    const auto bystander = openWindow({1000, 500, 400, 300});
    const auto home = rectOf(bystander->id());
    int tried = 0;
    for (bool hasActed = true; hasActed;) {
        const auto victim = openWindow(victimRect);
        settle();
        newLines();
        const auto window = victim->id();
        const auto frame = display.client.topLevelOf(window);
        interposer.arm(
            static_cast<std::size_t>(tried),
            [window, frame, root = display.client.root()](Interposer::Request request) {
                return concerns(request, window, frame, root);
            },
            [this, window, act = act] { perform(act, window); });
        pressKeysOf(mode);
        hasActed = interposer.disarm();
        if (hasActed) {
            ++tried;
            record.tried();
        }
        quorvel->waitUntilIdle();
        expectOneLineWhereNothingWasDone(mode);

        // Where the window had gone before the key, the one behind it was in front, and was what the key was for.
        auto expected = home;
        if (mode == Mode::moveResize) {
            expected.x += 20;
        } else if (mode == Mode::overlay) {
            expected = screen;
        }
        display.client.waitFor("the other window at its place", [&] {
            const auto rect = rectOf(bystander->id());
            return rect == home || rect == expected;
        });
        bystander->resizeItself(400, 300);
        bystander->moveItself(home.x, home.y);
        display.client.waitFor("the other window at home", [&] { return rectOf(bystander->id()) == home; });
        if (hasActed) {
            record.survived(seenIn(mode));
        }
    }
    workAnew(mode);
    EXPECT_GT(tried, 10);
    EXPECT_EQ(quorvel->end(), 0);
    EXPECT_THAT(quorvel->program().errorLines(), testing::IsEmpty());
}

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    for (const Mode mode : allModes) {
        for (const Act act : {Act::unmap, Act::destroy, Act::reparent}) {
            cases.push_back({mode, act});
        }
    }
    return cases;
}

INSTANTIATE_TEST_SUITE_P(In, BetweenRequestsReliability, testing::ValuesIn(allCases()), [](const auto& parameter) {
    return nameOf(parameter.param.mode) + "_" + verbOf(parameter.param.act);
});

} // namespace
} // namespace quorvel::e2e
