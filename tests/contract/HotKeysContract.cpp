#include <vector>

#include "contract/ContractTest.h"
#include "platform/HotKeys.h"

namespace quorvel::contract {
namespace {

constexpr KeyCode keyB = 11;
constexpr KeyCode keyN = 45;
constexpr auto twoModifiers = hotKeyModifiers::control | hotKeyModifiers::option;
constexpr auto twoFlags = eventFlags::control | eventFlags::option;

class HotKeysContract : public ContractTest {
protected:
    void SetUp() override
    {
        ASSERT_EQ(hotKeys.installHandler([this](HotKeyEvent& event) {
            fired.push_back(event.hotKeyId().value_or(HotKeyId{}));
            return event.callNextHandler();
        }),
                  osStatus::success);
    }

    bool fires(const std::vector<HotKeyId>& ids)
    {
        return desktop->waitUntil([&] { return fired.size() >= ids.size(); }) && fired == ids;
    }

    const HotKeyId first{7, 1};
    const HotKeyId second{7, 2};
    ContractWindow editor = desktop->openWindow("Editor", "Notes", {100.0, 120.0, 500.0, 400.0});
    HotKeys& hotKeys = port(&ContractPorts::hotKeys);
    std::vector<HotKeyId> fired;
};

TEST_F(HotKeysContract, APressFiresWithItsIdWhateverProgramHasTheKeyboard)
{
    const auto registration = hotKeys.registerHotKey(keyB, twoModifiers, first);
    EXPECT_EQ(registration.status, osStatus::success);
    EXPECT_NE(registration.ref, noHotKeyRef);

    desktop->pressKey(keyB, twoFlags);

    EXPECT_TRUE(fires({first}));
    desktop->settle();
    EXPECT_EQ(fired.size(), 1U);
    EXPECT_TRUE(desktop->keysReceivedBy(editor).empty());
}

TEST_F(HotKeysContract, EachCombinationHasItsOwnId)
{
    hotKeys.registerHotKey(keyB, twoModifiers, first);
    hotKeys.registerHotKey(keyN, twoModifiers, second);

    desktop->pressKey(keyN, twoFlags);
    desktop->pressKey(keyB, twoFlags);

    EXPECT_TRUE(fires({second, first}));
}

TEST_F(HotKeysContract, ModifiersMustMatchExactly)
{
    hotKeys.registerHotKey(keyB, twoModifiers, first);

    desktop->pressKey(keyB);
    desktop->pressKey(keyB, eventFlags::control);
    desktop->pressKey(keyB, twoFlags | eventFlags::shift);
    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor).size() == 3; }));

    EXPECT_TRUE(fired.empty());
}

TEST_F(HotKeysContract, AKeyWithoutModifiersCanBeAHotKey)
{
    hotKeys.registerHotKey(keyB, 0, first);

    desktop->pressKey(keyB);

    EXPECT_TRUE(fires({first}));
}

TEST_F(HotKeysContract, AutoRepeatOfAHeldHotKeyIsOnePress)
{
    hotKeys.registerHotKey(keyB, twoModifiers, first);

    desktop->holdKey(keyB, twoFlags);
    desktop->repeatKey(keyB);
    desktop->repeatKey(keyB);
    desktop->releaseKey(keyB);
    EXPECT_TRUE(fires({first}));
    desktop->settle();
    EXPECT_EQ(fired.size(), 1U);

    desktop->pressKey(keyB, twoFlags);
    EXPECT_TRUE(fires({first, first}));
    EXPECT_TRUE(desktop->keysReceivedBy(editor).empty());
}

TEST_F(HotKeysContract, ACombinationThatIsTakenHereCannotBeTakenAgain)
{
    hotKeys.registerHotKey(keyB, twoModifiers, first);

    const auto registration = hotKeys.registerHotKey(keyB, twoModifiers, second);

    EXPECT_EQ(registration.status, osStatus::hotKeyExists);
    EXPECT_EQ(registration.ref, noHotKeyRef);
    desktop->pressKey(keyB, twoFlags);
    EXPECT_TRUE(fires({first}));
}

TEST_F(HotKeysContract, ACombinationOfAnotherProgramCannotBeTaken)
{
    desktop->holdHotKeyElsewhere(keyB, twoModifiers);

    EXPECT_EQ(hotKeys.registerHotKey(keyB, twoModifiers, first).status, osStatus::hotKeyExists);
    EXPECT_EQ(hotKeys.registerHotKey(keyN, twoModifiers, second).status, osStatus::success);
}

TEST_F(HotKeysContract, AnUnregisteredCombinationReachesTheApplicationAgain)
{
    const auto registration = hotKeys.registerHotKey(keyB, 0, first);

    EXPECT_EQ(hotKeys.unregisterHotKey(registration.ref), osStatus::success);
    desktop->pressKey(keyB);

    EXPECT_TRUE(desktop->waitUntil([&] { return desktop->keysReceivedBy(editor) == std::vector{keyB}; }));
    EXPECT_TRUE(fired.empty());
}

TEST_F(HotKeysContract, AnUnregisteredCombinationCanBeTakenAgain)
{
    const auto registration = hotKeys.registerHotKey(keyB, twoModifiers, first);
    hotKeys.unregisterHotKey(registration.ref);

    EXPECT_EQ(hotKeys.registerHotKey(keyB, twoModifiers, second).status, osStatus::success);
    desktop->pressKey(keyB, twoFlags);

    EXPECT_TRUE(fires({second}));
}

TEST_F(HotKeysContract, AReferenceCanBeUnregisteredOnce)
{
    const auto registration = hotKeys.registerHotKey(keyB, twoModifiers, first);
    ASSERT_EQ(hotKeys.unregisterHotKey(registration.ref), osStatus::success);

    EXPECT_NE(hotKeys.unregisterHotKey(registration.ref), osStatus::success);
    EXPECT_NE(hotKeys.unregisterHotKey(noHotKeyRef), osStatus::success);
}

TEST_F(HotKeysContract, ARemovedHandlerHearsNothing)
{
    hotKeys.registerHotKey(keyB, twoModifiers, first);
    hotKeys.removeHandler();

    desktop->pressKey(keyB, twoFlags);
    desktop->settle();

    EXPECT_TRUE(fired.empty());
}

} // namespace
} // namespace quorvel::contract
