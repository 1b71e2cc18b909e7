#pragma once

#include <string>
#include <vector>

#include "report/Series.h"

namespace quorvel::bench {

// Places times on a line on which equal distances are equal factors.
class LogScale {
public:
    // The least and the greatest time to be placed; the scale begins and ends at a 1, 2 or 5 times a power of ten.
    LogScale(Milliseconds least, Milliseconds greatest);

    Milliseconds begin() const { return first; }
    Milliseconds end() const { return last; }

    // 0 at the beginning, 1 at the end; times beyond are placed there.
    double position(Milliseconds time) const;

    // The powers of ten from the beginning to the end.
    std::vector<Milliseconds> ticks() const;

private:
    Milliseconds first;
    Milliseconds last;
};

// "1 ms", "0.1 ms", "10 s".
std::string tickText(Milliseconds tick);

} // namespace quorvel::bench
