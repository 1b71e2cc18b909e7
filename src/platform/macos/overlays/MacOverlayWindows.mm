#include "platform/macos/overlays/MacOverlayWindows.h"

#include "platform/macos/Rects.h"
#include "platform/macos/overlays/KeyPanel.h"
#include "platform/macos/overlays/MacOverlayWindow.h"

namespace quorvel::macos {

namespace {

template <class T>
Retained<T> make(Class windowClass, const WindowDescription& description)
{
    const T window = [[windowClass alloc] initWithContentRect:nsRect(description.contentRect)
                                                    styleMask:description.styleMask
                                                      backing:NSBackingStoreBuffered
                                                        defer:description.isDeferred ? YES : NO];
    return Retained<T>::adopt(window);
}

} // namespace

std::unique_ptr<OverlayWindow> MacOverlayWindows::createWindow(const WindowDescription& description)
{
    return std::make_unique<MacOverlayWindow>(make<NSWindow*>([NSWindow class], description), description);
}

std::unique_ptr<OverlayPanel> MacOverlayWindows::createPanel(const WindowDescription& description,
                                                             std::function<void(const KeyEvent&)> onKeyDown)
{
    const auto panel = make<QuorvelKeyPanel*>([QuorvelKeyPanel class], description);
    [panel.get() setOnKeyDown:std::move(onKeyDown)];
    return std::make_unique<MacOverlayWindow>(Retained<NSWindow*>::retain(panel.get()), description);
}

} // namespace quorvel::macos
