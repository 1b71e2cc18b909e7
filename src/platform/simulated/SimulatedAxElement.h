#pragma once

#include <cstdint>

#include "platform/Accessibility.h"

namespace quorvel {

enum class SimulatedElementKind { application, window };

// A name of an application, by its process, or of a window, by its number.
class SimulatedAxElement final : public AxElement {
public:
    SimulatedAxElement(SimulatedElementKind kind, std::uint64_t id) : kind(kind), id(id) {}

    bool isEqual(const AxElement& other) const override
    {
        const auto* same = dynamic_cast<const SimulatedAxElement*>(&other);
        return same != nullptr && same->kind == kind && same->id == id;
    }

    const SimulatedElementKind kind;
    const std::uint64_t id;
};

} // namespace quorvel
