#include "system/KeyCapturePanel.h"

#include <utility>

#include "platform/Platform.h"

namespace quorvel {

KeyCapturePanel::KeyCapturePanel(const Platform& platform, const ScreenRect& contentRect, CapturedKeyHandler onKeyDown)
    : onKeyDown(std::move(onKeyDown))
{
    panel = platform.overlayWindows.createPanel(
        {
            .contentRect = contentRect,
            .level = windowLevels::floating,
            .collectionBehavior = collectionBehaviors::canJoinAllSpaces | collectionBehaviors::ignoresCycle |
                                  collectionBehaviors::fullScreenAuxiliary,
        },
        weakly.guard([this](const KeyEvent& event) { this->onKeyDown(capturedKeyFrom(event)); }));
}

void KeyCapturePanel::orderFrontRegardless()
{
    panel->orderFrontRegardless();
}

void KeyCapturePanel::makeKey()
{
    panel->makeKey();
}

void KeyCapturePanel::orderOut()
{
    panel->orderOut();
}

bool KeyCapturePanel::isVisible() const
{
    return panel->isVisible();
}

bool KeyCapturePanel::isKey() const
{
    return panel->isKey();
}

} // namespace quorvel
