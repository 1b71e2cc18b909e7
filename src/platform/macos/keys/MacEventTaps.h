#pragma once

#include "platform/EventTaps.h"

namespace quorvel::macos {

class MacEventTaps final : public EventTaps {
public:
    std::unique_ptr<EventTap> createTap(const EventTapDescription& description, EventTapCallback callback) override;
};

} // namespace quorvel::macos
