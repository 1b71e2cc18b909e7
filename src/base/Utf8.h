#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvel {

// Text is UTF-8 throughout. Characters are what a person counts as one (extended grapheme clusters); a byte that is
// not part of valid UTF-8 counts as one character of its own.

std::size_t characterCount(std::string_view text);

// The first character, or an empty string for an empty text.
std::string firstCharacter(std::string_view text);

std::string upperCased(std::string_view text);

// True when the character stands for a number: a digit of any script, or a sign such as "½" or "Ⅳ".
bool isNumericCharacter(std::string_view character);

// The text without what stands at its ends and is neither a letter, a mark nor a number of any script.
std::string_view trimmedToAlphanumerics(std::string_view text);

// The text without blanks, tabs, line ends and the like at its ends.
std::string_view trimmedOfWhiteSpace(std::string_view text);

// The text with every invalid byte replaced by U+FFFD.
std::string validUtf8(std::string_view text);

} // namespace quorvel
