#include "platform/x11/qt/KeyDownFilter.h"

#include <QByteArray>

#include <xcb/xcb.h>

namespace quorvel::x11 {

namespace {

constexpr std::uint8_t sentBySomebodyMask = 0x80;

}

bool KeyDownFilter::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result)
{
    Q_UNUSED(result)
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    if ((event.response_type & ~sentBySomebodyMask) != XCB_KEY_PRESS) {
        return false;
    }
    const auto& press = reinterpret_cast<const xcb_key_press_event_t&>(event);
    return host.keyDown(press.detail, press.state) == EventHandling::swallow;
}

} // namespace quorvel::x11
