#pragma once

#include "platform/Dates.h"

namespace quorvel::macos {

class MacDates final : public Dates {
public:
    Date now() const override;
    std::string mediumText(const Date& date) const override;
};

} // namespace quorvel::macos
