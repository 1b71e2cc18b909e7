#include "preferences/ShortcutPreferencesViewModel.h"

#include <utility>

namespace quorvel {

ShortcutPreferencesViewModel::ShortcutPreferencesViewModel(EventMonitors& eventMonitors, Actions actions)
    : eventMonitors(eventMonitors), actions(std::move(actions))
{}

void ShortcutPreferencesViewModel::toggleRecording()
{
    if (isRecording) {
        stopRecording();
    } else {
        startRecording();
    }
}

void ShortcutPreferencesViewModel::startRecording()
{
    isRecording = true;
    eventMonitor = eventMonitors.addLocalKeyDownMonitor([this](const KeyEvent& event) { return handleKeyDown(event); });
    recordingChanged.emit();
}

void ShortcutPreferencesViewModel::stopRecording()
{
    if (!isRecording) {
        return;
    }
    isRecording = false;
    eventMonitor.reset();
    recordingChanged.emit();
}

void ShortcutPreferencesViewModel::clear() const
{
    actions.setKeyCode(0);
    actions.setModifiers(0);
    actions.postShortcutChanged();
}

// A stored key code of 0 means that there is no key, so the key of that code cannot be recorded.
EventHandling ShortcutPreferencesViewModel::handleKeyDown(const KeyEvent& event)
{
    if (!isRecording || event.keyCode == 0) {
        return EventHandling::pass;
    }
    actions.setKeyCode(event.keyCode);
    actions.setModifiers(hotKeyModifiersOf(event.flags & eventFlags::deviceIndependentMask));
    stopRecording();
    actions.postShortcutChanged();
    return EventHandling::swallow;
}

} // namespace quorvel
