#include "platform/simulated/SimulatedLog.h"

#include "platform/simulated/Journal.h"

namespace quorvel {

void SimulatedLog::line(std::string_view text)
{
    journal.record("Log.line({})", text);
    written.emplace_back(text);
}

} // namespace quorvel
