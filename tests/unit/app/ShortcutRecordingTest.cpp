// Recording a shortcut in the preferences of the running program, and using it.

#include <gmock/gmock.h>

#include "preferences/ShortcutPreferencesView.h"
#include "tests/unit/app/AppFixture.h"

namespace quorvel {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

using Combination = SimulatedHotKeys::Combination;

class ShortcutRecordingTest : public AppFixture {
protected:
    void record(KeyCode keyCode, std::uint64_t flags)
    {
        controller().openPreferences();
        desktop.drain();
        ShortcutPreferencesView pane(platform);
        pane.press("activateOverlayKeyCode.record");
        type(keyCode, flags);
    }

    void closePreferences()
    {
        desktop.preferencesUi.closeWindows();
        desktop.drain();
        desktop.activate(editor);
    }

    static constexpr KeyCode k = 40;
};

TEST_F(ShortcutRecordingTest, ARecordedShortcutCountsOnceThePreferencesAreClosed)
{
    launch();
    record(k, commandShift);
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());

    closePreferences();
    EXPECT_THAT(desktop.hotKeys.registered(), Contains(Combination{k, 768}));
    EXPECT_THAT(desktop.hotKeys.registered(), Not(Contains(Combination{keys::o, 768})));
    type(k, commandShift);
    EXPECT_EQ(state(), StateManager::States::overlayOn);
}

TEST_F(ShortcutRecordingTest, AShortcutThatIsInUseCanBeRecordedAgain)
{
    launch();
    record(keys::o, commandShift);
    EXPECT_EQ(desktop.userDefaults.object("activateOverlayKeyCode"), PropertyValue{std::int64_t{keys::o}});
    EXPECT_EQ(state(), StateManager::States::normal);
    closePreferences();
    EXPECT_THAT(desktop.hotKeys.registered(), Contains(Combination{keys::o, 768}));
}

} // namespace
} // namespace quorvel
