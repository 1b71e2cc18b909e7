#pragma once

#include <optional>
#include <utility>

#include "platform/EventTaps.h"

namespace quorvel {

class SimulatedTapEvent final : public TapEvent {
public:
    SimulatedTapEvent(TapEventType type, KeyCode keyCode, std::optional<KeyEvent> conversion)
        : eventType(type), code(keyCode), conversion(std::move(conversion))
    {}

    TapEventType type() const override { return eventType; }
    KeyCode keyCode() const override { return code; }
    std::optional<KeyEvent> keyEvent() const override { return conversion; }

private:
    TapEventType eventType;
    KeyCode code;
    std::optional<KeyEvent> conversion;
};

} // namespace quorvel
