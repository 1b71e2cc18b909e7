#include "platform/simulated/SimulatedLog.h"

#include "base/LogText.h"
#include "platform/simulated/Journal.h"

namespace quorvel {

void SimulatedLog::line(std::string_view text)
{
    journal.record("Log.line({})", text);
    written.push_back(plainLine(text));
}

} // namespace quorvel
