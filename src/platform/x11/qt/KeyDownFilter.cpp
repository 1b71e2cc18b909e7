#include "platform/x11/qt/KeyDownFilter.h"

#include <cstdint>

namespace quorvel::x11 {

// Qt offers each key to the window twice: first, before it looks for a shortcut, as something that may override that,
// then as a press.
bool KeyDownFilter::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    const bool isOffer = type == QEvent::ShortcutOverride;
    if (!watched->isWindowType() || (!isOffer && type != QEvent::KeyPress && type != QEvent::KeyRelease)) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isTaken = isOffer ? takes(key) : swallowed != 0 && key.nativeScanCode() == swallowed;
    if (type == QEvent::KeyRelease && isTaken && !key.isAutoRepeat()) {
        swallowed = 0;
    }
    if (isTaken) {
        event->accept();
    }
    return isTaken;
}

bool KeyDownFilter::takes(const QKeyEvent& offer)
{
    const auto keycode = offer.nativeScanCode();
    if (offer.isAutoRepeat() && keycode == swallowed) {
        return true;
    }
    const bool isSwallowed =
        host.keyDown(static_cast<std::uint8_t>(keycode), static_cast<std::uint16_t>(offer.nativeModifiers())) ==
        EventHandling::swallow;
    if (isSwallowed) {
        swallowed = keycode;
    } else if (keycode == swallowed) {
        swallowed = 0;
    }
    return isSwallowed;
}

} // namespace quorvel::x11
