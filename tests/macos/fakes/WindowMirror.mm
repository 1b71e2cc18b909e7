#include "macos/fakes/WindowMirror.h"

#include <map>

#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/KeyEventObject.h"

namespace quorvel::fakes {

namespace {

std::map<NSWindow*, WindowMirror> mirrors;

ScreenRect screenRect(NSRect rect)
{
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace

void WindowMirror::show()
{
    create();
    shown->orderFrontRegardless();
}

void WindowMirror::hide()
{
    if (shown != nullptr) {
        shown->orderOut();
    }
    [window resignKeyWindow];
}

void WindowMirror::place(NSRect newFrame)
{
    frame = newFrame;
    if (shown != nullptr) {
        shown->setFrame(screenRect(frame));
    }
}

void WindowMirror::makeKey()
{
    if (panel != nullptr) {
        panel->makeKey();
    }
}

void WindowMirror::create()
{
    if (shown != nullptr) {
        return;
    }
    auto& windows = FakeDesktop::current().desktop.overlayWindows;
    if ([window canBecomeKeyWindow]) {
        auto created =
            windows.createPanel(description(), [this](const KeyEvent& key) { [window sendEvent:keyDown(key)]; });
        panel = created.get();
        shown = std::move(created);
    } else {
        shown = windows.createWindow(description());
    }
    shown->setFrameAutosaveName(frameAutosaveName);
}

WindowDescription WindowMirror::description() const
{
    return {
        .contentRect = screenRect(frame),
        .styleMask = static_cast<unsigned>([window styleMask]),
        .level = static_cast<int>([window level]),
        .collectionBehavior = collectionBehavior,
        .hasShadow = [window hasShadow] != NO,
        .ignoresMouseEvents = [window ignoresMouseEvents] != NO,
        .isOpaque = [window isOpaque] != NO,
        .isReleasedWhenClosed = [window isReleasedWhenClosed] != NO,
    };
}

WindowMirror& mirrorOf(NSWindow* window)
{
    return mirrors.try_emplace(window, window).first->second;
}

void forgetMirror(NSWindow* window)
{
    mirrors.erase(window);
}

} // namespace quorvel::fakes
