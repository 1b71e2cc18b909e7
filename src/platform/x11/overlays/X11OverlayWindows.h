#pragma once

#include "platform/OverlayWindows.h"
#include "platform/x11/overlays/OverlayStage.h"

namespace quorvel::x11 {

class Keyboard;
class TypingPause;

// Override-redirect windows with an alpha channel, which no window manager touches. What they are given during one turn
// of the main loop is sent together; what is closed goes when nobody waits for anything else.
class X11OverlayWindows final : public OverlayWindows {
public:
    X11OverlayWindows(Connection& connection, MainQueue& mainQueue, Precedence& precedence, X11Screens& screens,
                      const Keyboard& keyboard, TypingPause& typingPause, OverlayGraphics& graphics,
                      const TextLayouts& layouts)
        : keyboard(keyboard),
          typingPause(typingPause),
          stage(connection, mainQueue, precedence, screens, graphics, layouts)
    {}

    std::unique_ptr<OverlayWindow> createWindow(const WindowDescription& description) override;
    std::unique_ptr<OverlayPanel> createPanel(const WindowDescription& description,
                                              std::function<void(const KeyEvent&)> onKeyDown) override;

private:
    const Keyboard& keyboard;
    TypingPause& typingPause;
    OverlayStage stage;
};

} // namespace quorvel::x11
