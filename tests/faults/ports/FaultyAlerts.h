#pragma once

#include "platform/Alerts.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyAlerts final : public Alerts {
public:
    FaultyAlerts(Alerts& real, PortFaults& faults) : real(real), faults(faults) {}

    // Fails by being closed without an answer.
    std::size_t runModal(const Alert& alert) override
    {
        return faults.attempt("Alerts.runModal", [&] { return real.runModal(alert); }, alert.buttons.size() - 1);
    }

private:
    Alerts& real;
    PortFaults& faults;
};

} // namespace quorvel
