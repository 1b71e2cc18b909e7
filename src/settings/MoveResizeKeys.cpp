#include "settings/MoveResizeKeys.h"

#include "settings/SettingsKeys.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

KeyCodeSet MoveResizeKeys::keyCodes() const
{
    return {moveLeft, moveRight, moveUp, moveDown, cycleWindows, minimize, exitMode};
}

bool MoveResizeKeys::isResizing(std::uint64_t flags) const
{
    return (flags & eventFlags::deviceIndependentMask) == resizeModifierFlags;
}

MoveResizeKeys moveResizeKeys(const Settings& settings)
{
    return {
        .moveLeft = modeKeyCode(settings, settingsKeys::mrMoveLeftKeyCode),
        .moveRight = modeKeyCode(settings, settingsKeys::mrMoveRightKeyCode),
        .moveUp = modeKeyCode(settings, settingsKeys::mrMoveUpKeyCode),
        .moveDown = modeKeyCode(settings, settingsKeys::mrMoveDownKeyCode),
        .cycleWindows = modeKeyCode(settings, settingsKeys::mrCycleWindowsKeyCode),
        .minimize = modeKeyCode(settings, settingsKeys::mrMinimizeKeyCode),
        .exitMode = modeKeyCode(settings, settingsKeys::mrExitModeKeyCode),
        .resizeModifierFlags = resizeModifierFlags(settings),
    };
}

} // namespace quorvel
