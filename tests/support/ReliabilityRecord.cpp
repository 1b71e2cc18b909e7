#include "support/ReliabilityRecord.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <utility>

#include <nlohmann/json.hpp>

namespace quorvel {

ReliabilityRecord::ReliabilityRecord(std::string desktop, std::string fault)
    : desktop(std::move(desktop)), fault(std::move(fault))
{}

ReliabilityRecord::~ReliabilityRecord()
{
    const char* const folder = std::getenv("QUORVEL_RELIABILITY");
    if (folder == nullptr || *folder == '\0' || timesTried == 0) {
        return;
    }
    // As one write, for other tests are writing, too.
    std::ofstream(std::filesystem::path(folder) / "records.jsonl", std::ios::app) << text() << std::flush;
}

void ReliabilityRecord::survived(std::string seen)
{
    ++timesSurvived;
    saw(std::move(seen));
}

std::string ReliabilityRecord::text() const
{
    const nlohmann::json line{{"desktop", desktop},
                              {"fault", fault},
                              {"tried", timesTried},
                              {"survived", timesSurvived},
                              {"seen", everythingSeen}};
    return line.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

} // namespace quorvel
