#include "platform/simulated/SimulatedHotKeys.h"

#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

class SimulatedHotKeysTest : public testing::Test {
protected:
    OsStatus install()
    {
        return hotKeys.installHandler([this](HotKeyEvent& event) {
            const auto id = event.hotKeyId();
            heard.push_back(id ? std::optional(*id) : std::nullopt);
            return id ? event.callNextHandler() : osStatus::success;
        });
    }

    SimulatedDesktop desktop;
    SimulatedHotKeys& hotKeys = desktop.hotKeys;
    std::vector<std::optional<HotKeyId>> heard;
};

TEST_F(SimulatedHotKeysTest, AFailedInstallationLeavesNoHandler)
{
    hotKeys.failInstallation(-9866);
    EXPECT_EQ(install(), -9866);
    EXPECT_FALSE(hotKeys.hasHandler());

    hotKeys.behave();
    EXPECT_EQ(install(), osStatus::success);
    EXPECT_TRUE(hotKeys.hasHandler());
}

TEST_F(SimulatedHotKeysTest, AFailedRegistrationClaimsNothing)
{
    hotKeys.failRegistration(-50);
    const auto registration = hotKeys.registerHotKey(31, 768, {7, 1});

    EXPECT_EQ(registration.status, -50);
    EXPECT_EQ(registration.ref, noHotKeyRef);
    EXPECT_TRUE(hotKeys.registered().empty());
}

TEST_F(SimulatedHotKeysTest, ALostReferenceIsASuccessThatClaimsNothing)
{
    hotKeys.loseReferences();
    const auto registration = hotKeys.registerHotKey(31, 768, {7, 1});

    EXPECT_EQ(registration.status, osStatus::success);
    EXPECT_EQ(registration.ref, noHotKeyRef);
    EXPECT_TRUE(hotKeys.registered().empty());
}

TEST_F(SimulatedHotKeysTest, AFailedUnregistrationKeepsTheClaim)
{
    const auto first = hotKeys.registerHotKey(31, 768, {7, 1});
    const auto second = hotKeys.registerHotKey(15, 2304, {7, 2});
    hotKeys.failUnregistration(first.ref, -50);

    EXPECT_EQ(hotKeys.unregisterHotKey(first.ref), -50);
    EXPECT_EQ(hotKeys.unregisterHotKey(second.ref), osStatus::success);

    EXPECT_EQ(hotKeys.registered(), (std::vector<SimulatedHotKeys::Combination>{{31, 768}}));
}

TEST_F(SimulatedHotKeysTest, EventsCanBeForgedAndTellWhatBecameOfThem)
{
    install();

    hotKeys.send(HotKeyId{0xBAD, 1});
    hotKeys.send(std::unexpected(osStatus::parameterError));
    EXPECT_TRUE(heard.empty());
    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::optional<HotKeyId>>{HotKeyId{0xBAD, 1}, std::nullopt}));
    ASSERT_EQ(hotKeys.deliveries().size(), 2U);
    EXPECT_EQ(hotKeys.deliveries()[0].nextHandlerCalls, 1U);
    EXPECT_EQ(hotKeys.deliveries()[0].result, osStatus::eventNotHandled);
    EXPECT_EQ(hotKeys.deliveries()[1].nextHandlerCalls, 0U);
    EXPECT_EQ(hotKeys.deliveries()[1].result, osStatus::success);
}

TEST_F(SimulatedHotKeysTest, ACombinationWithoutHandlerIsTakenAllTheSame)
{
    auto& editor = desktop.launch("Editor");
    hotKeys.registerHotKey(31, 0, {7, 1});

    desktop.press(31);
    desktop.drain();

    EXPECT_TRUE(editor.receivedKeys().empty());
    EXPECT_TRUE(hotKeys.deliveries().empty());
}

TEST_F(SimulatedHotKeysTest, CapsLockDoesNotMatter)
{
    install();
    hotKeys.registerHotKey(31, hotKeyModifiers::shift, {7, 1});

    desktop.press(31, eventFlags::shift | eventFlags::capsLock);
    desktop.drain();

    EXPECT_EQ(heard.size(), 1U);
}

} // namespace
} // namespace quorvel
