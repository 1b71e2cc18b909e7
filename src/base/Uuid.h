#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

// A universally unique identifier.
class Uuid {
public:
    Uuid() = default; // all zeros

    // A fresh random one.
    static Uuid random();

    // Reads the canonical form, 8-4-4-4-12 hexadecimal digits in either case; nothing for any other text.
    static std::optional<Uuid> fromText(std::string_view text);

    // The canonical form, in upper case.
    std::string text() const;

    bool operator==(const Uuid&) const = default;

private:
    std::array<std::uint8_t, 16> bytes{};
};

} // namespace quorvel
