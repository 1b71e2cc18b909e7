#pragma once

#include <optional>
#include <string>

#include "base/Date.h"
#include "base/Uuid.h"

namespace quorvel {

// What every theme has, whatever it is a theme of.
struct ThemeRecord {
    Uuid id; // never changes; names need not be unique
    std::string name;
    Date createdAt;
    Date updatedAt;
    std::optional<std::string> notes;

    bool operator==(const ThemeRecord&) const = default;
};

} // namespace quorvel
