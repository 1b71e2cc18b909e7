#pragma once

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel {

// Themes as they are stored: a JSON array of objects whose keys are the names of the record's fields, with dates as
// seconds since 2001 and ids as text. Every key but "notes" is required and must have its type; unknown keys are
// ignored. One bad record makes the whole document bad. An error is a text fit for a log line.
//
// For Theme, SwitcherTheme and MoveResizeTheme.
template <class Record>
std::expected<std::vector<Record>, std::string> decodeThemes(std::string_view json);

// Fails for a number that is not finite. Text that is not valid UTF-8 is written with replacement characters.
template <class Record>
std::expected<std::string, std::string> encodeThemes(const std::vector<Record>& themes);

} // namespace quorvel
