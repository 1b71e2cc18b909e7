#include "platform/x11/overlays/X11OverlayWindows.h"

#include <utility>

#include "platform/x11/overlays/X11OverlayPanel.h"
#include "platform/x11/overlays/X11OverlayWindow.h"

namespace quorvel::x11 {

std::unique_ptr<OverlayWindow> X11OverlayWindows::createWindow(const WindowDescription& description)
{
    return std::make_unique<X11OverlayWindow>(stage, description);
}

std::unique_ptr<OverlayPanel> X11OverlayWindows::createPanel(const WindowDescription& description,
                                                             std::function<void(const KeyEvent&)> onKeyDown)
{
    return std::make_unique<X11OverlayPanel>(stage, keyboard, typingPause, description, std::move(onKeyDown));
}

} // namespace quorvel::x11
