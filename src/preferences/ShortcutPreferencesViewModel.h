#pragma once

#include <cstdint>
#include <functional>

#include "base/Keys.h"
#include "base/Signal.h"
#include "platform/EventMonitors.h"

namespace quorvel {

// Records the shortcut of one row: the next key typed into a window of this program.
class ShortcutPreferencesViewModel {
public:
    struct Actions {
        std::function<void(KeyCode)> setKeyCode;
        std::function<void(std::uint32_t)> setModifiers; // a mask of hotKeyModifiers
        std::function<void()> postShortcutChanged;
    };

    // `eventMonitors` outlives the model.
    ShortcutPreferencesViewModel(EventMonitors& eventMonitors, Actions actions);

    bool recording() const { return isRecording; }

    // Calls `changed` after each change of recording(), until the token goes.
    Subscription observeRecording(std::function<void()> changed)
    {
        return recordingChanged.observe(std::move(changed));
    }

    // The button that reads "Record" or "Stop". Stopping changes nothing.
    void toggleRecording();
    void stopRecording();

    void clear() const;

private:
    void startRecording();
    EventHandling handleKeyDown(const KeyEvent& event);

    EventMonitors& eventMonitors;
    Actions actions;
    bool isRecording = false;
    Subscription eventMonitor;
    Signal<> recordingChanged;
};

} // namespace quorvel
