#include "platform/x11/SessionType.h"

#include <cstdlib>
#include <string_view>

namespace quorvel::x11 {

namespace {

std::string_view environmentVariable(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

std::string sessionType()
{
    if (const auto type = environmentVariable("XDG_SESSION_TYPE"); !type.empty()) {
        return std::string(type);
    }
    return environmentVariable("WAYLAND_DISPLAY").empty() ? "unspecified" : "wayland";
}

} // namespace quorvel::x11
