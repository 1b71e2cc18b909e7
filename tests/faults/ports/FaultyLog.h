#pragma once

#include "platform/Log.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyLog final : public Log {
public:
    FaultyLog(Log& real, PortFaults& faults) : real(real), faults(faults) {}

    void line(std::string_view text) override
    {
        faults.attemptEffect("Log.line", [&] { real.line(text); });
    }

private:
    Log& real;
    PortFaults& faults;
};

} // namespace quorvel
