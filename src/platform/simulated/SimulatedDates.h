#pragma once

#include "platform/Dates.h"

namespace quorvel {

// A calendar in American English and universal time. Its clock stands still until it is set.
class SimulatedDates final : public Dates {
public:
    Date now() const override { return today; }
    std::string mediumText(const Date& date) const override;

    Date today{757'382'400.0}; // January 1, 2025
};

} // namespace quorvel
