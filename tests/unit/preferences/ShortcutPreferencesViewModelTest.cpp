#include "preferences/ShortcutPreferencesViewModel.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedEventMonitors.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr KeyCode keyO = 31;

class ShortcutPreferencesViewModelTest : public testing::Test {
protected:
    EventHandling type(KeyCode keyCode, std::uint64_t flags = 0) { return monitors.keyDown({keyCode, "", flags}); }

    Journal journal;
    SimulatedEventMonitors monitors{journal};
    std::vector<std::string> calls;
    ShortcutPreferencesViewModel model{
        monitors,
        {.setKeyCode = [this](KeyCode keyCode) { calls.push_back("key " + std::to_string(keyCode)); },
         .setModifiers = [this](std::uint32_t modifiers) { calls.push_back("modifiers " + std::to_string(modifiers)); },
         .postShortcutChanged = [this] { calls.emplace_back("post"); }}};
};

TEST_F(ShortcutPreferencesViewModelTest, TheNextKeyIsRecordedAndSwallowed)
{
    model.toggleRecording();
    EXPECT_TRUE(model.recording());
    EXPECT_EQ(monitors.keyMonitorCount(), 1U);

    EXPECT_EQ(type(keyO, eventFlags::command | eventFlags::shift), EventHandling::swallow);
    EXPECT_THAT(calls, ElementsAre("key 31", "modifiers 768", "post"));
    EXPECT_FALSE(model.recording());
    EXPECT_EQ(monitors.keyMonitorCount(), 0U);
}

TEST_F(ShortcutPreferencesViewModelTest, OnlyTheNextKeyIsRecorded)
{
    model.toggleRecording();
    type(keyO);
    calls.clear();
    EXPECT_EQ(type(keyO), EventHandling::pass);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ShortcutPreferencesViewModelTest, ABareKeyIsRecordedEscapeIncluded)
{
    model.toggleRecording();
    EXPECT_EQ(type(keyCodes::escape), EventHandling::swallow);
    EXPECT_THAT(calls, ElementsAre("key 53", "modifiers 0", "post"));
}

TEST_F(ShortcutPreferencesViewModelTest, OtherFlagsThanTheFourModifiersDoNotCount)
{
    model.toggleRecording();
    type(keyO, 0x1F0000);
    EXPECT_THAT(calls, ElementsAre("key 31", "modifiers 6912", "post"));
    calls.clear();
    model.toggleRecording();
    type(keyO, eventFlags::control | 0xFFFF);
    EXPECT_THAT(calls, ElementsAre("key 31", "modifiers 4096", "post"));
}

TEST_F(ShortcutPreferencesViewModelTest, TheKeyOfCodeZeroPassesAndTheRecordingGoesOn)
{
    model.toggleRecording();
    EXPECT_EQ(type(keyCodes::a, eventFlags::command), EventHandling::pass);
    EXPECT_TRUE(model.recording());
    EXPECT_EQ(monitors.keyMonitorCount(), 1U);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ShortcutPreferencesViewModelTest, StoppingWritesAndPostsNothing)
{
    model.toggleRecording();
    model.toggleRecording();
    EXPECT_FALSE(model.recording());
    EXPECT_EQ(monitors.keyMonitorCount(), 0U);
    EXPECT_EQ(type(keyO), EventHandling::pass);
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ShortcutPreferencesViewModelTest, ClearingWritesZerosAndPosts)
{
    model.clear();
    EXPECT_THAT(calls, ElementsAre("key 0", "modifiers 0", "post"));
}

TEST_F(ShortcutPreferencesViewModelTest, ThereIsNeverMoreThanOneMonitor)
{
    model.toggleRecording();
    model.toggleRecording();
    model.toggleRecording();
    EXPECT_EQ(monitors.keyMonitorCount(), 1U);
    EXPECT_EQ(journal.count("EventMonitors.addLocalKeyDownMonitor"), 2U);
    EXPECT_EQ(journal.count("EventMonitors.remove"), 1U);
}

TEST_F(ShortcutPreferencesViewModelTest, ObserversHearOfTheBeginningAndTheEnd)
{
    std::vector<bool> states;
    const auto token = model.observeRecording([&] { states.push_back(model.recording()); });
    model.stopRecording();
    model.toggleRecording();
    type(keyO);
    model.toggleRecording();
    model.stopRecording();
    EXPECT_THAT(states, ElementsAre(true, false, true, false));
}

} // namespace
} // namespace quorvel
