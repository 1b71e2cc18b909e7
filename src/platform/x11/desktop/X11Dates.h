#pragma once

#include "platform/Dates.h"

namespace quorvel::x11 {

// The clock, and dates as the environment's locale writes them.
class X11Dates final : public Dates {
public:
    Date now() const override;
    std::string mediumText(const Date& date) const override;
};

} // namespace quorvel::x11
