#pragma once

#include "platform/Screens.h"

namespace quorvel::macos {

class MacScreens final : public Screens {
public:
    std::vector<Screen> screens() override;
    std::optional<Screen> mainScreen() override;
};

} // namespace quorvel::macos
