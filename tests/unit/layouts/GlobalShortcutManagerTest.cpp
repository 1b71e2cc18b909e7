#include "layouts/GlobalShortcutManager.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t signature = 0x7276656C;
constexpr std::uint32_t commandShift = hotKeyModifiers::command | hotKeyModifiers::shift;

class GlobalShortcutManagerTest : public testing::Test {
protected:
    void registerKey(std::uint32_t keyCode, Action action)
    {
        manager->registerHotKey(keyCode, commandShift, action, [this](Action fired) { calls.push_back(fired); });
    }

    std::optional<std::uint32_t> idOf(std::uint32_t keyCode) const
    {
        const auto id = desktop.hotKeys.idOf({keyCode, commandShift});
        return id ? std::optional(id->id) : std::nullopt;
    }

    std::vector<std::string> logLines() const { return desktop.log.lines(); }

    SimulatedDesktop desktop;
    std::vector<Action> calls;
    std::unique_ptr<GlobalShortcutManager> manager =
        std::make_unique<GlobalShortcutManager>(desktop.hotKeys, desktop.mainQueue, desktop.log);
};

TEST_F(GlobalShortcutManagerTest, IdsRunFromOneAndTheHandlerIsInstalledOnce)
{
    registerKey(31, Action::activateOverlay);
    registerKey(15, Action::moveResizeFrontmost);
    registerKey(3, Action::focusSwitcher);
    EXPECT_EQ(idOf(31), 1U);
    EXPECT_EQ(idOf(15), 2U);
    EXPECT_EQ(idOf(3), 3U);
    EXPECT_EQ(desktop.hotKeys.idOf({31, commandShift})->signature, signature);
    EXPECT_EQ(desktop.journal.count("HotKeys.installHandler"), 1U);
}

TEST_F(GlobalShortcutManagerTest, ARegistrationIsLoggedWithItsNumbers)
{
    registerKey(31, Action::activateOverlay);
    EXPECT_THAT(logLines(), ElementsAre("Registered hotkey id=1 keyCode=31 modifiers=768"));
}

TEST_F(GlobalShortcutManagerTest, APressCallsTheHandlerWithItsActionAndPassesTheEventOn)
{
    registerKey(31, Action::activateOverlay);
    registerKey(3, Action::focusSwitcher);
    desktop.hotKeys.deliver(HotKeyId{signature, 2});
    EXPECT_THAT(calls, ElementsAre(Action::focusSwitcher));
    EXPECT_EQ(desktop.hotKeys.deliveries().back().nextHandlerCalls, 1U);
    EXPECT_EQ(desktop.hotKeys.deliveries().back().result, osStatus::eventNotHandled);
}

TEST_F(GlobalShortcutManagerTest, ReleasingAHotKeyCallsNothing)
{
    registerKey(31, Action::activateOverlay);
    desktop.hold(31, eventFlags::command | eventFlags::shift);
    desktop.drain();
    EXPECT_THAT(calls, ElementsAre(Action::activateOverlay));
    desktop.releaseKey(31);
    desktop.drain();
    EXPECT_THAT(calls, ElementsAre(Action::activateOverlay));
}

TEST_F(GlobalShortcutManagerTest, AnUnknownIdOrAForeignSignatureCallsNothing)
{
    registerKey(31, Action::activateOverlay);
    desktop.hotKeys.deliver(HotKeyId{signature, 2});
    desktop.hotKeys.deliver(HotKeyId{signature + 1, 1});
    EXPECT_THAT(calls, IsEmpty());
    ASSERT_EQ(desktop.hotKeys.deliveries().size(), 2U);
    EXPECT_EQ(desktop.hotKeys.deliveries()[0].nextHandlerCalls, 1U);
    EXPECT_EQ(desktop.hotKeys.deliveries()[1].nextHandlerCalls, 1U);
}

TEST_F(GlobalShortcutManagerTest, AnEventWithoutReadableIdIsOnlyPassedOn)
{
    registerKey(31, Action::activateOverlay);
    desktop.hotKeys.deliver(std::unexpected(osStatus::parameterError));
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(desktop.hotKeys.deliveries().back().nextHandlerCalls, 1U);
}

TEST_F(GlobalShortcutManagerTest, AFailedRegistrationUsesUpNoId)
{
    desktop.hotKeys.holdElsewhere({31, commandShift});
    registerKey(31, Action::activateOverlay);
    registerKey(3, Action::focusSwitcher);
    EXPECT_EQ(idOf(31), std::nullopt);
    EXPECT_EQ(idOf(3), 1U);
    EXPECT_THAT(logLines(), ElementsAre("Failed to register hotkey with status: -9878",
                                        "Registered hotkey id=1 keyCode=3 modifiers=768"));
    desktop.hotKeys.deliver(HotKeyId{signature, 1});
    EXPECT_THAT(calls, ElementsAre(Action::focusSwitcher));
}

TEST_F(GlobalShortcutManagerTest, ARegistrationWithoutReferenceCountsAsFailed)
{
    desktop.hotKeys.loseReferences();
    registerKey(31, Action::activateOverlay);
    desktop.hotKeys.behave();
    registerKey(3, Action::focusSwitcher);
    EXPECT_THAT(logLines(),
                ElementsAre("Failed to obtain hotKeyRef", "Registered hotkey id=1 keyCode=3 modifiers=768"));
}

TEST_F(GlobalShortcutManagerTest, AFailedInstallationIsTriedAgainAtTheNextRegistration)
{
    desktop.hotKeys.failInstallation(-9866);
    registerKey(31, Action::activateOverlay);
    EXPECT_THAT(logLines(), ElementsAre("Failed to install event handler with status: -9866",
                                        "Registered hotkey id=1 keyCode=31 modifiers=768"));
    desktop.hotKeys.behave();
    registerKey(3, Action::focusSwitcher);
    EXPECT_TRUE(desktop.hotKeys.hasHandler());
    registerKey(15, Action::moveResizeFrontmost);
    EXPECT_EQ(desktop.journal.count("HotKeys.installHandler"), 2U);
    desktop.hotKeys.deliver(HotKeyId{signature, 1});
    EXPECT_THAT(calls, ElementsAre(Action::activateOverlay));
}

TEST_F(GlobalShortcutManagerTest, UnregisteringAllBeginsAgainWithIdOneAndKeepsTheHandler)
{
    registerKey(31, Action::activateOverlay);
    registerKey(3, Action::focusSwitcher);
    manager->unregisterAll();
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());
    EXPECT_TRUE(desktop.hotKeys.hasHandler());
    desktop.hotKeys.deliver(HotKeyId{signature, 2});
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(desktop.hotKeys.deliveries().back().nextHandlerCalls, 1U);

    registerKey(3, Action::focusSwitcher);
    EXPECT_EQ(idOf(3), 1U);
    desktop.hotKeys.deliver(HotKeyId{signature, 1});
    EXPECT_THAT(calls, ElementsAre(Action::focusSwitcher));
    EXPECT_EQ(desktop.journal.count("HotKeys.installHandler"), 1U);
}

TEST_F(GlobalShortcutManagerTest, AReferenceThatCannotBeGivenBackDoesNotKeepTheOthers)
{
    registerKey(31, Action::activateOverlay);
    registerKey(15, Action::moveResizeFrontmost);
    registerKey(3, Action::focusSwitcher);
    desktop.hotKeys.failUnregistration(2, osStatus::parameterError);
    desktop.log.clear();
    desktop.journal.clear();
    manager->unregisterAll();
    EXPECT_THAT(logLines(), ElementsAre("UnregisterEventHotKey failed with status: -50"));
    EXPECT_THAT(
        desktop.journal.entries({"HotKeys."}),
        ElementsAre("HotKeys.unregisterHotKey(1)", "HotKeys.unregisterHotKey(2)", "HotKeys.unregisterHotKey(3)"));
    desktop.hotKeys.deliver(HotKeyId{signature, 2});
    EXPECT_THAT(calls, IsEmpty());
    registerKey(40, Action::nextLayout);
    EXPECT_EQ(idOf(40), 1U);
}

TEST_F(GlobalShortcutManagerTest, AHandlerMayUnregisterEveryHotKeyItsOwnIncluded)
{
    const auto witness = std::make_shared<std::string>("still here");
    std::string seen;
    manager->registerHotKey(31, commandShift, Action::activateOverlay, [this, witness, &seen](Action) {
        manager->unregisterAll();
        seen = *witness;
    });
    desktop.hotKeys.deliver(HotKeyId{signature, 1});
    EXPECT_EQ(seen, "still here");
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());
}

TEST_F(GlobalShortcutManagerTest, DestructionGivesEverythingBackWithoutAWord)
{
    registerKey(31, Action::activateOverlay);
    registerKey(3, Action::focusSwitcher);
    desktop.hotKeys.failUnregistration(1, osStatus::parameterError);
    desktop.log.clear();
    desktop.journal.clear();
    manager.reset();
    EXPECT_THAT(logLines(), IsEmpty());
    EXPECT_THAT(desktop.journal.entries({"HotKeys."}),
                ElementsAre("HotKeys.unregisterHotKey(1)", "HotKeys.unregisterHotKey(2)", "HotKeys.removeHandler()"));
}

TEST_F(GlobalShortcutManagerTest, DestructionRemovesNoHandlerThatWasNeverInstalled)
{
    desktop.hotKeys.failInstallation(-9866);
    registerKey(31, Action::activateOverlay);
    manager.reset();
    EXPECT_EQ(desktop.journal.count("HotKeys.removeHandler"), 0U);
}

TEST_F(GlobalShortcutManagerTest, InstallingFromAnotherThreadWaitsForTheMainQueue)
{
    std::thread([this] { manager->installEventHandlerIfNeeded(); }).join();
    EXPECT_FALSE(desktop.hotKeys.hasHandler());
    desktop.drain();
    EXPECT_TRUE(desktop.hotKeys.hasHandler());
}

TEST_F(GlobalShortcutManagerTest, ADeferredInstallationOfAManagerThatIsGoneDoesNothing)
{
    std::thread([this] { manager->installEventHandlerIfNeeded(); }).join();
    manager.reset();
    desktop.drain();
    EXPECT_EQ(desktop.journal.count("HotKeys.installHandler"), 0U);
}

TEST(HashableHotKeyID, IsAKeyOverSignatureAndId)
{
    const HashableHotKeyID key{{1, 2}};
    EXPECT_EQ(key, (HashableHotKeyID{{1, 2}}));
    EXPECT_NE(key, (HashableHotKeyID{{1, 3}}));
    EXPECT_NE(key, (HashableHotKeyID{{2, 2}}));
    const std::unordered_map<HashableHotKeyID, int> map{{key, 1}, {{{2, 1}}, 2}};
    EXPECT_EQ(map.at({{1, 2}}), 1);
    EXPECT_EQ(map.at({{2, 1}}), 2);
    EXPECT_NE(std::hash<HashableHotKeyID>()(key), std::hash<HashableHotKeyID>()({{2, 1}}));
}

} // namespace
} // namespace quorvel
