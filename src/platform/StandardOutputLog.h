#pragma once

#include "platform/Log.h"

namespace quorvel {

// Diagnostic lines on standard output. Each leaves in one write, so that lines of several programs that share a
// terminal or a journal do not mix. A reader that has gone away is no reason to stop.
class StandardOutputLog final : public Log {
public:
    void line(std::string_view text) override;
};

} // namespace quorvel
