#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "platform/HotKeys.h"

namespace quorvel {

// The id of a hot key as a key of unordered maps.
struct HashableHotKeyID {
    HotKeyId hotKeyId;

    bool operator==(const HashableHotKeyID&) const = default;
};

} // namespace quorvel

template <>
struct std::hash<quorvel::HashableHotKeyID> {
    std::size_t operator()(const quorvel::HashableHotKeyID& key) const noexcept
    {
        const auto signatureHash = std::hash<std::uint32_t>()(key.hotKeyId.signature);
        return signatureHash * 31 + std::hash<std::uint32_t>()(key.hotKeyId.id);
    }
};
