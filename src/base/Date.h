#pragma once

namespace quorvel {

// A moment, in seconds since 2001-01-01 00:00:00 UTC.
struct Date {
    double secondsSince2001 = 0.0;

    bool operator==(const Date&) const = default;
};

} // namespace quorvel
