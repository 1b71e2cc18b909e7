#pragma once

#include "platform/SystemColors.h"

namespace quorvel::macos {

// As they look in the appearance that this program has now, light or dark.
class MacSystemColors final : public SystemColors {
public:
    Color accent() const override;
    Color blue() const override;
    Color green() const override;
    Color yellow() const override;
};

} // namespace quorvel::macos
