#include "platform/macos/keys/MacEventTaps.h"

#include "platform/macos/keys/MacEventTap.h"

namespace quorvel::macos {

std::unique_ptr<EventTap> MacEventTaps::createTap(const EventTapDescription& description, EventTapCallback callback)
{
    auto tap = std::make_unique<MacEventTap>(description, std::move(callback));
    return tap->exists() ? std::move(tap) : nullptr;
}

} // namespace quorvel::macos
