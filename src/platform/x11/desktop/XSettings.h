#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quorvel::x11 {

// The value of a text setting in what a settings daemon publishes (the XSETTINGS format); nothing if it is absent, of
// another type, or if the data is damaged before it.
std::optional<std::string> textSetting(std::span<const std::uint8_t> data, std::string_view name);

} // namespace quorvel::x11
