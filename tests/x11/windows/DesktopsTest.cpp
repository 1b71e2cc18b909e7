#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/TestWindow.h"
#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

using xtest::TestWindow;
using Manager = xtest::WindowManager;

// Some window managers refuse to activate a window of another desktop.
class Desktops : public testing::TestWithParam<Manager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
        }
        desktop = std::make_unique<AdapterDisplay>();
        desktop->display.startWindowManager(GetParam());
        client().sendToWindowManager(client().root(), "_NET_NUMBER_OF_DESKTOPS", {2, 0, 0, 0, 0});
        away = std::make_unique<TestWindow>(desktop->display.server, TestWindow::Options{.title = "Away"});
        away->map();
        here = std::make_unique<TestWindow>(desktop->display.server, TestWindow::Options{.title = "Here"});
        here->map();
        client().sendToWindowManager(away->id(), "_NET_WM_DESKTOP", {1, 2, 0, 0, 0});
        desktop->waitFor("a window on another desktop", [&] {
            return first(away->id(), "_NET_WM_DESKTOP") == 1U && !client().isViewable(away->id());
        });
        client().activate(here->id());
    }

    xtest::XClient& client() { return desktop->client(); }

    void show(std::uint32_t number)
    {
        client().sendToWindowManager(client().root(), "_NET_CURRENT_DESKTOP", {number, 0, 0, 0, 0});
        desktop->waitFor("a desktop", [&] { return first(client().root(), "_NET_CURRENT_DESKTOP") == number; });
    }

    std::optional<std::uint32_t> first(xcb_window_t window, const std::string& property)
    {
        const auto values = client().property(window, property);
        return values.empty() ? std::nullopt : std::optional(values.front());
    }

    const WindowSnapshot* snapshotOf(const TestWindow& window)
    {
        desktop->connection->sync();
        desktop->connection->dispatchEvents();
        desktop->connection->beginTurn();
        return desktop->adapters.windows.find(window.id());
    }

    std::unique_ptr<AdapterDisplay> desktop;
    std::unique_ptr<TestWindow> away;
    std::unique_ptr<TestWindow> here;
};

TEST_P(Desktops, RaisingAWindowOfAnotherShowsThatOneAndGivesItTheKeyboard)
{
    desktop->adapters.activation.raise(away->id());
    desktop->waitFor("the other desktop with its window", [&] {
        return first(client().root(), "_NET_CURRENT_DESKTOP") == 1U && client().activeWindow() == away->id() &&
               client().isViewable(away->id());
    });
    EXPECT_FALSE(client().hasState(away->id(), "_NET_WM_STATE_DEMANDS_ATTENTION"));
}

TEST_P(Desktops, AWindowOfAnotherIsNotTakenForAMinimizedOne)
{
    here->iconify();
    const auto* const elsewhere = snapshotOf(*away);
    ASSERT_NE(elsewhere, nullptr);
    EXPECT_FALSE(elsewhere->isHidden);
    EXPECT_FALSE(elsewhere->isWithdrawn());
    EXPECT_FALSE(desktop->adapters.windows.isOnCurrentDesktop(*elsewhere));
    const auto* const minimized = snapshotOf(*here);
    ASSERT_NE(minimized, nullptr);
    EXPECT_TRUE(minimized->isHidden);
    EXPECT_FALSE(minimized->isWithdrawn());
    EXPECT_TRUE(desktop->adapters.windows.isOnCurrentDesktop(*minimized));
}

// Window managers do not raise the window that gets the keyboard because its desktop is shown again.
TEST_P(Desktops, AWindowOfAnotherIsListedAfterThoseOnScreenEvenIfItIsInFrontOfThem)
{
    TestWindow minimized(desktop->display.server, {.title = "Minimized"});
    minimized.map();
    client().activate(minimized.id());
    minimized.iconify();
    desktop->waitFor("a minimized window", [&] { return client().hasState(minimized.id(), "_NET_WM_STATE_HIDDEN"); });
    show(1);
    client().activate(away->id());
    show(0);
    desktop->waitFor("the window of the first desktop", [&] { return client().isViewable(here->id()); });

    const auto titles = [&] {
        std::vector<std::string> result;
        auto& accessibility = desktop->adapters.accessibility;
        const auto application = accessibility.applicationElement(getpid());
        const auto windows = accessibility.copyAttribute(application, axNames::windows);
        for (const auto& each : std::get<std::vector<AxElementRef>>(windows.value())) {
            result.push_back(std::get<std::string>(accessibility.copyAttribute(each, axNames::title).value()));
        }
        return result;
    };
    desktop->waitFor("the window on screen before that of the other desktop, and the minimized one last",
                     [&] { return titles() == std::vector<std::string>{"Here", "Away", "Minimized"}; });
}

INSTANTIATE_TEST_SUITE_P(On, Desktops, testing::Values(Manager::openbox, Manager::metacity, Manager::fluxbox),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::x11
