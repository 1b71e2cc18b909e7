#pragma once

#include <string>
#include <string_view>

#include "platform/PaneButton.h"

namespace quorvel {

// A button whose title says it all.
inline PaneButton titledButton(std::string_view id, std::string_view title, ButtonRole role = ButtonRole::normal)
{
    return {.id = std::string(id),
            .title = std::string(title),
            .symbol = {},
            .accessibleName = std::string(title),
            .role = role,
            .isEnabled = true};
}

} // namespace quorvel
