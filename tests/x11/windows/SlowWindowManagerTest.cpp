#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/TestWindow.h"
#include "x11/windows/AdapterDisplay.h"
#include "x11/windows/ManualWindowManager.h"

namespace quorvel::x11 {
namespace {

using xtest::FrameExtents;
using xtest::PixelRect;

constexpr FrameExtents widths{2, 3, 18, 4};
constexpr PixelRect target{640, 512, 640, 512};
constexpr PixelRect request{640, 512, 635, 490};

constexpr std::chrono::milliseconds longerThanQuiet{200};

// WM_NORMAL_HINTS with increments of width and height.
const std::vector<std::uint32_t> sizedInSteps = {1U << 6U, 0, 0, 0, 0, 0, 0, 0, 0, 6, 13, 0, 0, 0, 0, 0, 0, 0};

class SlowWindowManager : public testing::Test {
protected:
    SlowWindowManager()
    {
        window.map();
        manager.emplace(desktop.display.server);
        manager->enclose(window.id(), widths);
    }

    void writeTarget()
    {
        desktop.write(AdapterDisplay::elementOf(::getpid(), window.id()), target.inPoints());
        letItHear();
    }

    // The adapter hears of all that has happened.
    void letItHear()
    {
        for (int turn = 0; turn < 3; ++turn) {
            window.client().sync();
            desktop.connection->sync();
            desktop.connection->dispatchEvents();
            desktop.loop.drain();
        }
    }

    void waitUntilItIsLeftAlone()
    {
        desktop.waitFor("the window to be left alone", [&] { return !desktop.adapters.placements.isBusy(); });
    }

    void setStates(const std::vector<std::string>& names)
    {
        std::vector<std::uint32_t> atoms;
        for (const auto& name : names) {
            atoms.push_back(manager->client().atom(name));
        }
        manager->client().setProperty(window.id(), "_NET_WM_STATE", XCB_ATOM_ATOM, atoms);
        manager->client().sync();
    }

    PixelRect frame() { return manager->client().topLevelRect(window.id()).value_or(PixelRect{}); }

    AdapterDisplay desktop;
    xtest::TestWindow window{desktop.display.server, {.rect = {100, 100, 1280, 980}}};
    std::optional<ManualWindowManager> manager;
};

TEST_F(SlowWindowManager, IsNotCorrectedForAResultThatIsStillToCome)
{
    writeTarget();
    setStates({"_NET_WM_STATE_FOCUSED"}); // which tells nothing of the request
    letItHear();
    waitUntilItIsLeftAlone();
    manager->obey();
    EXPECT_EQ(manager->placements(), std::vector{request});
    EXPECT_EQ(frame(), target);
}

TEST_F(SlowWindowManager, IsCorrectedForWhatItMadeOfTheRequest)
{
    writeTarget();
    manager->obey();
    manager->moveFrame(window.id(), {640, 500, 640, 512}); // it prefers to have it there
    letItHear();
    desktop.waitFor("a correction", [&] {
        manager->obey();
        return manager->placements().size() == 2;
    });
    EXPECT_EQ(manager->placements().back(), (PixelRect{640, 524, 635, 490}));
}

// Of a window that is sized in steps nobody can tell whether its size is right.
TEST_F(SlowWindowManager, IsWaitedForWhenItHasOnlyMovedTheWindow)
{
    window.client().setProperty(window.id(), "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizedInSteps);
    writeTarget();
    manager->moveFrame(window.id(), {target.x, target.y, 1285, 1002});
    letItHear();
    std::optional<bool> isWaitedFor; // after the time in which a window comes to rest
    desktop.loop.mainLoop().after(longerThanQuiet, [&] { isWaitedFor = desktop.adapters.placements.isBusy(); });
    desktop.waitFor("time to pass", [&] { return isWaitedFor.has_value(); });
    EXPECT_TRUE(*isWaitedFor);
}

TEST_F(SlowWindowManager, IsNotAskedForASizeThatIsReckonedFromHalfAChange)
{
    setStates({"_NET_WM_STATE_FULLSCREEN"});
    manager->sizeClient(window.id(), 1280, 1024);
    manager->moveFrame(window.id(), {-2, -18, 1285, 1046});
    writeTarget();
    manager->obey();
    setStates({});
    manager->sizeClient(window.id(), 300, 200); // and the frame is still as large as the screen
    letItHear();
    manager->moveFrame(window.id(), {100, 100, 305, 222});
    letItHear();
    desktop.waitFor("the request", [&] {
        manager->obey();
        return !manager->placements().empty();
    });
    letItHear();
    waitUntilItIsLeftAlone();
    manager->obey();
    EXPECT_EQ(manager->placements(), std::vector{request});
    EXPECT_EQ(frame(), target);
}

class Obedience : public testing::TestWithParam<xtest::WindowManager> {};

TEST_P(Obedience, OfEveryWindowManagerIsToldOnceTheWindowIsThere)
{
    if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
        GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
    }
    AdapterDisplay desktop;
    desktop.display.startWindowManager(GetParam());
    const xtest::ClientProcess program(desktop.display.server, desktop.client(), xtest::ClientProcess::Kind::plain);
    for (const std::int32_t width : {300, 600, 320, 640, 340}) {
        std::optional<PixelRect> client;
        desktop.adapters.windowManager.moveAndResize(program.window(), {300, 200, width, 400});
        desktop.adapters.barrier.whenReached([&] { client = desktop.client().clientRect(program.window()); });
        desktop.waitFor("the window manager's answer", [&] { return client.has_value(); });
        EXPECT_EQ(client->width, width);
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Obedience, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::x11
