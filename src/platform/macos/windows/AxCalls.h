#pragma once

#include <expected>

#include <ApplicationServices/ApplicationServices.h>

#include "platform/Accessibility.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

// Seconds that a call may wait for the application that it asks.
inline constexpr float readingTimeout = 0.25F;
inline constexpr float actingTimeout = 1.0F;

inline std::expected<void, AxError> axResult(AXError error)
{
    if (error != kAXErrorSuccess) {
        return std::unexpected(AxError{error});
    }
    return {};
}

inline std::expected<CfRef<CFTypeRef>, AxError> readAttribute(AXUIElementRef element, CFStringRef name,
                                                              float timeout = readingTimeout)
{
    AXUIElementSetMessagingTimeout(element, timeout);
    CFTypeRef value = nullptr;
    const auto result = axResult(AXUIElementCopyAttributeValue(element, name, &value));
    auto owned = CfRef<CFTypeRef>::adopt(value);
    if (!result) {
        return std::unexpected(result.error());
    }
    if (!owned) {
        return std::unexpected(axErrors::noValue);
    }
    return owned;
}

inline std::expected<void, AxError> writeAttribute(AXUIElementRef element, CFStringRef name, CFTypeRef value)
{
    AXUIElementSetMessagingTimeout(element, actingTimeout);
    return axResult(AXUIElementSetAttributeValue(element, name, value));
}

} // namespace quorvel::macos
