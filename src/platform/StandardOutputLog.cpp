#include "platform/StandardOutputLog.h"

#include <cstdio>
#include <string>

namespace quorvel {

void StandardOutputLog::line(std::string_view text)
{
    std::string whole(text);
    whole += '\n';
    std::fwrite(whole.data(), 1, whole.size(), stdout);
    std::fflush(stdout);
}

} // namespace quorvel
