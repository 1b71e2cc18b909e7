#pragma once

#include <string_view>

namespace quorvel {

// The program's diagnostic lines.
class Log {
public:
    Log() = default;
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;
    virtual ~Log() = default;

    // Writes one line, given without its line end, as a whole. A control character becomes a blank.
    //
    // macOS, X11: to standard output, flushed.
    virtual void line(std::string_view text) = 0;
};

} // namespace quorvel
