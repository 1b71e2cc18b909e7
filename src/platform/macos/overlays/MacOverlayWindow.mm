#include "platform/macos/overlays/MacOverlayWindow.h"

#include "platform/macos/Rects.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

MacOverlayWindow::MacOverlayWindow(Retained<NSWindow*> newWindow, const WindowDescription& description)
    : window(std::move(newWindow)),
      view(Retained<QuorvelDrawListView*>::adopt([[QuorvelDrawListView alloc] initWithFrame:NSZeroRect]))
{
    @autoreleasepool {
        NSWindow* const made = window.get();
        [made setReleasedWhenClosed:description.isReleasedWhenClosed ? YES : NO];
        [made setBackgroundColor:[NSColor clearColor]];
        [made setOpaque:description.isOpaque ? YES : NO];
        [made setHasShadow:description.hasShadow ? YES : NO];
        [made setIgnoresMouseEvents:description.ignoresMouseEvents ? YES : NO];
        [made setLevel:description.level];
        [made setCollectionBehavior:description.collectionBehavior];
        [made setHidesOnDeactivate:NO]; // as panels do of themselves
        [made setAnimationBehavior:NSWindowAnimationBehaviorNone];
        [made setContentView:view.get()];
    }
}

MacOverlayWindow::~MacOverlayWindow()
{
    close();
}

ScreenRect MacOverlayWindow::frame() const
{
    return screenRect([window.get() frame]);
}

void MacOverlayWindow::setFrame(const ScreenRect& frame)
{
    @autoreleasepool {
        [window.get() setFrame:nsRect(frame) display:YES];
    }
}

void MacOverlayWindow::setFrameAutosaveName(std::string_view name)
{
    @autoreleasepool {
        [window.get() setFrameAutosaveName:nsString(name)];
    }
}

void MacOverlayWindow::setContent(DrawList content)
{
    [view.get() setContent:std::move(content)];
}

void MacOverlayWindow::setClipsToBounds(bool clips)
{
    [view.get() setClipsToBounds:clips ? YES : NO];
}

void MacOverlayWindow::orderFrontRegardless()
{
    @autoreleasepool {
        [window.get() orderFrontRegardless];
    }
}

void MacOverlayWindow::orderOut()
{
    @autoreleasepool {
        [window.get() orderOut:nil];
    }
}

void MacOverlayWindow::close()
{
    @autoreleasepool {
        [window.get() close];
    }
}

bool MacOverlayWindow::isVisible() const
{
    return [window.get() isVisible] != NO;
}

NotificationObject MacOverlayWindow::notificationObject() const
{
    return reinterpret_cast<NotificationObject>(window.get());
}

void MacOverlayWindow::makeKey()
{
    @autoreleasepool {
        [window.get() makeKeyWindow];
    }
}

bool MacOverlayWindow::isKey() const
{
    return [window.get() isKeyWindow] != NO;
}

} // namespace quorvel::macos
