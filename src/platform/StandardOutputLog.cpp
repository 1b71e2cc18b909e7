#include "platform/StandardOutputLog.h"

#include <cstdio>
#include <string>

#include "base/LogText.h"

namespace quorvel {

void StandardOutputLog::line(std::string_view text)
{
    const auto whole = plainLine(text) + '\n';
    std::fwrite(whole.data(), 1, whole.size(), stdout);
    std::fflush(stdout);
}

} // namespace quorvel
