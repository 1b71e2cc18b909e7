#include "base/Uuid.h"

#include <charconv>
#include <cstddef>
#include <random>

#include <fmt/format.h>

namespace quorvel {

namespace {

constexpr std::size_t textLength = 36;

// Whether a hyphen stands in front of this byte.
constexpr bool beginsGroup(std::size_t byte)
{
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

std::optional<std::uint8_t> byteFrom(std::string_view digits)
{
    std::uint8_t byte = 0;
    const auto* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, byte, 16);
    return result.ec == std::errc() && result.ptr == end ? std::optional(byte) : std::nullopt;
}

} // namespace

Uuid Uuid::random()
{
    std::random_device source;
    std::uniform_int_distribution<unsigned> anyByte(0, 0xFF);
    Uuid uuid;
    for (auto& byte : uuid.bytes) {
        byte = static_cast<std::uint8_t>(anyByte(source));
    }
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0FU) | 0x40U); // version 4: random
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3FU) | 0x80U); // the usual variant
    return uuid;
}

std::optional<Uuid> Uuid::fromText(std::string_view text)
{
    if (text.size() != textLength) {
        return std::nullopt;
    }
    Uuid uuid;
    std::size_t offset = 0;
    for (std::size_t index = 0; index < uuid.bytes.size(); ++index) {
        if (beginsGroup(index) && text[offset++] != '-') {
            return std::nullopt;
        }
        const auto byte = byteFrom(text.substr(offset, 2));
        if (!byte) {
            return std::nullopt;
        }
        uuid.bytes[index] = *byte;
        offset += 2;
    }
    return uuid;
}

std::string Uuid::text() const
{
    std::string text;
    text.reserve(textLength);
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        text += fmt::format("{}{:02X}", beginsGroup(index) ? "-" : "", bytes[index]);
    }
    return text;
}

} // namespace quorvel
