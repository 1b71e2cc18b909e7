#pragma once

#include "platform/TextMetrics.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyTextMetrics final : public TextMetrics {
public:
    FaultyTextMetrics(TextMetrics& real, PortFaults& faults) : real(real), faults(faults) {}

    Size measure(std::string_view text, const Font& font) const override
    {
        return faults.attempt("TextMetrics.measure", [&] { return real.measure(text, font); }, Size());
    }

private:
    TextMetrics& real;
    PortFaults& faults;
};

} // namespace quorvel
