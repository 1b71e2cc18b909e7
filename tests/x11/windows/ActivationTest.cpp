#include "platform/x11/windows/Activation.h"

#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/TestWindow.h"
#include "x11/windows/AdapterDisplay.h"
#include "x11/windows/ManualWindowManager.h"

namespace quorvel::x11 {
namespace {

// Time stands still in it.
class TimelessQueue final : public MainQueue {
public:
    void async(std::function<void()> work) override { waiting.push_back(std::move(work)); }
    void after(std::chrono::duration<double>, std::function<void()>) override {}
    Subscription repeat(std::chrono::duration<double>, std::function<void()>) override { return {}; }
    bool isMainThread() const override { return true; }

    void turn()
    {
        for (const auto& work : std::exchange(waiting, {})) {
            work();
        }
    }

private:
    std::vector<std::function<void()>> waiting;
};

class ActivationTest : public testing::Test {
protected:
    ActivationTest()
    {
        window.map();
        manager.emplace(desktop.display.server);
    }

    // The window manager does what it has been asked, and the adapter hears of it.
    void letItObey()
    {
        desktop.connection->sync();
        manager->client().handleEvents();
        manager->obey();
        manager->client().sync();
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
        queue.turn();
    }

    AdapterDisplay desktop;
    xtest::TestWindow window{desktop.display.server, {.rect = {100, 100, 200, 200}}};
    std::optional<ManualWindowManager> manager;
    TimelessQueue queue;
    Precedence precedence{queue};
    Activation activation{
        *desktop.connection, desktop.adapters.windows, desktop.adapters.windowManager, desktop.adapters.typingPause,
        precedence,          desktop.adapters.barrier};
};

// Letters are taken away afterwards: one by one they uncover what is below, and meanwhile no window comes forward.
TEST_F(ActivationTest, GoesBeforeWhatMerelyHasToBeDone)
{
    desktop.waitFor("the window manager", [&] { return desktop.adapters.barrier.isSupported(); });
    bool isDone = false;
    activation.raise(window.id());
    precedence.afterwards([&] { isDone = true; });
    queue.turn();
    EXPECT_FALSE(isDone);
    letItObey(); // the activation
    EXPECT_FALSE(isDone);
    letItObey(); // what the focus has changed
    EXPECT_TRUE(isDone);
}

TEST_F(ActivationTest, OfAWindowThatIsGoneHoldsNothingUp)
{
    bool isDone = false;
    const auto gone = xtest::TestWindow(desktop.display.server, {}).id();
    activation.raise(gone);
    precedence.afterwards([&] { isDone = true; });
    queue.turn();
    EXPECT_TRUE(isDone);
}

} // namespace
} // namespace quorvel::x11
