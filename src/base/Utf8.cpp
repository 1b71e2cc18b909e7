#include "base/Utf8.h"

#include <algorithm>

#include <utf8proc.h>

namespace quorvel {

namespace {

struct Scalar {
    utf8proc_int32_t codePoint = -1; // below 0: the byte is not valid UTF-8
    std::size_t length = 1;
};

Scalar scalarAt(std::string_view text, std::size_t offset)
{
    utf8proc_int32_t codePoint = -1;
    const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()) + offset,
                                         static_cast<utf8proc_ssize_t>(text.size() - offset), &codePoint);
    return length > 0 ? Scalar{codePoint, static_cast<std::size_t>(length)} : Scalar{};
}

void append(std::string& text, utf8proc_int32_t codePoint)
{
    utf8proc_uint8_t bytes[4];
    const auto length = utf8proc_encode_char(codePoint, bytes);
    text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

bool isAlphanumeric(const Scalar& scalar)
{
    if (scalar.codePoint < 0) {
        return false;
    }
    switch (utf8proc_category(scalar.codePoint)) {
    case UTF8PROC_CATEGORY_LU:
    case UTF8PROC_CATEGORY_LL:
    case UTF8PROC_CATEGORY_LT:
    case UTF8PROC_CATEGORY_LM:
    case UTF8PROC_CATEGORY_LO:
    case UTF8PROC_CATEGORY_MN:
    case UTF8PROC_CATEGORY_MC:
    case UTF8PROC_CATEGORY_ME:
    case UTF8PROC_CATEGORY_ND:
    case UTF8PROC_CATEGORY_NL:
    case UTF8PROC_CATEGORY_NO:
        return true;
    default:
        return false;
    }
}

bool isWhiteSpace(const Scalar& scalar)
{
    if (scalar.codePoint < 0) {
        return false;
    }
    switch (utf8proc_category(scalar.codePoint)) {
    case UTF8PROC_CATEGORY_ZS:
    case UTF8PROC_CATEGORY_ZL:
    case UTF8PROC_CATEGORY_ZP:
        return true;
    default:
        return (scalar.codePoint >= '\t' && scalar.codePoint <= '\r') || scalar.codePoint == 0x85;
    }
}

// The text from the first to the last scalar that is to be kept.
std::string_view trimmedTo(std::string_view text, bool (*isKept)(const Scalar&))
{
    std::size_t begin = text.size();
    std::size_t end = text.size();
    for (std::size_t offset = 0; offset < text.size();) {
        const auto scalar = scalarAt(text, offset);
        if (isKept(scalar)) {
            begin = std::min(begin, offset);
            end = offset + scalar.length;
        }
        offset += scalar.length;
    }
    return text.substr(begin, end - begin);
}

// The offset just behind the character that begins at `offset`.
std::size_t characterEnd(std::string_view text, std::size_t offset)
{
    auto current = scalarAt(text, offset);
    std::size_t end = offset + current.length;
    utf8proc_int32_t state = 0;
    while (end < text.size() && current.codePoint >= 0) {
        const auto next = scalarAt(text, end);
        if (next.codePoint < 0 || utf8proc_grapheme_break_stateful(current.codePoint, next.codePoint, &state)) {
            break;
        }
        end += next.length;
        current = next;
    }
    return end;
}

} // namespace

std::size_t characterCount(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); offset = characterEnd(text, offset)) {
        ++count;
    }
    return count;
}

std::string firstCharacter(std::string_view text)
{
    return text.empty() ? std::string() : std::string(text.substr(0, characterEnd(text, 0)));
}

std::string upperCased(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const auto scalar = scalarAt(text, offset);
        if (scalar.codePoint < 0) {
            result += text[offset];
        } else if (scalar.codePoint == 0xDF) {
            result += "SS";
        } else {
            append(result, utf8proc_toupper(scalar.codePoint));
        }
        offset += scalar.length;
    }
    return result;
}

bool isNumericCharacter(std::string_view character)
{
    if (character.empty()) {
        return false;
    }
    const auto scalar = scalarAt(character, 0);
    if (scalar.codePoint < 0) {
        return false;
    }
    const auto category = utf8proc_category(scalar.codePoint);
    return category == UTF8PROC_CATEGORY_ND || category == UTF8PROC_CATEGORY_NL || category == UTF8PROC_CATEGORY_NO;
}

std::string_view trimmedToAlphanumerics(std::string_view text)
{
    return trimmedTo(text, isAlphanumeric);
}

std::string_view trimmedOfWhiteSpace(std::string_view text)
{
    return trimmedTo(text, [](const Scalar& scalar) { return !isWhiteSpace(scalar); });
}

std::string validUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const auto scalar = scalarAt(text, offset);
        if (scalar.codePoint < 0) {
            result += "\xEF\xBF\xBD";
        } else {
            result.append(text.substr(offset, scalar.length));
        }
        offset += scalar.length;
    }
    return result;
}

} // namespace quorvel
