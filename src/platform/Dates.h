#pragma once

#include <string>

#include "base/Date.h"

namespace quorvel {

// The calendar of the user.
class Dates {
public:
    Dates() = default;
    Dates(const Dates&) = delete;
    Dates& operator=(const Dates&) = delete;
    virtual ~Dates() = default;

    virtual Date now() const = 0;

    // The day of that moment in the user's language, region and time zone, in the medium length: "Jan 1, 2025".
    virtual std::string mediumText(const Date& date) const = 0;
};

} // namespace quorvel
