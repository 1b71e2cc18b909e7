#pragma once

#include <string>
#include <vector>

#include "platform/Log.h"

namespace quorvel {

class Journal;

class SimulatedLog final : public Log {
public:
    explicit SimulatedLog(Journal& journal) : journal(journal) {}

    void line(std::string_view text) override;

    const std::vector<std::string>& lines() const { return written; }
    void clear() { written.clear(); }

private:
    Journal& journal;
    std::vector<std::string> written;
};

} // namespace quorvel
