#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/Platform.h"

namespace quorvel {

// The value of an attribute if it can be read and is of that type; no line in the log if not.
template <class Value>
std::optional<Value> quietAttribute(const Platform& platform, const AxElementRef& element, std::string_view name)
{
    auto value = platform.accessibility.copyAttribute(element, name);
    auto* const typed = value ? std::get_if<Value>(&*value) : nullptr;
    return typed != nullptr ? std::optional<Value>(std::move(*typed)) : std::nullopt;
}

// Where a window is, if both halves of it can be read; the size is not asked for without the position.
inline std::optional<AxRect> quietRect(const Platform& platform, const AxElementRef& window)
{
    const auto position = quietAttribute<AxPoint>(platform, window, axNames::position);
    if (!position) {
        return std::nullopt;
    }
    const auto size = quietAttribute<Size>(platform, window, axNames::size);
    return size ? std::optional(AxRect::of(*position, *size)) : std::nullopt;
}

} // namespace quorvel
