#pragma once

#include "platform/Screens.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyScreens final : public Screens {
public:
    FaultyScreens(Screens& real, PortFaults& faults) : real(real), faults(faults) {}

    std::vector<Screen> screens() override
    {
        return faults.attempt("Screens.screens", [&] { return real.screens(); }, std::vector<Screen>());
    }

    std::optional<Screen> mainScreen() override
    {
        return faults.attempt("Screens.mainScreen", [&] { return real.mainScreen(); }, std::nullopt);
    }

private:
    Screens& real;
    PortFaults& faults;
};

} // namespace quorvel
