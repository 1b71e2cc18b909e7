#pragma once

#include <map>
#include <string>
#include <string_view>

#include "settings/Settings.h"

namespace quorvel {

// The digits that jump to layouts. A digit belongs to one layout at most.
class LayoutDigits {
public:
    explicit LayoutDigits(Settings settings) : settings(settings) {}

    // Empty for a layout without one.
    std::string digitOf(const std::string& layoutID) const;

    // Takes what a person typed: white space at its ends does not count, nothing removes the digit, and a single
    // number other than 0 moves from whichever layout has it. Anything else changes nothing.
    void assign(const std::string& layoutID, std::string_view typed);

    void remove(const std::string& layoutID);

private:
    using DigitsByID = std::map<std::string, std::string>;

    DigitsByID stored() const;
    void store(const DigitsByID& digits);

    Settings settings;
};

} // namespace quorvel
