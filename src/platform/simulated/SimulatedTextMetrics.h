#pragma once

#include "platform/TextMetrics.h"

namespace quorvel {

class Journal;

// A font whose characters are all equally wide: 0.6 of its size, 0.65 where it is semibold or bold; a line is 1.2 of
// its size high.
class SimulatedTextMetrics final : public TextMetrics {
public:
    explicit SimulatedTextMetrics(Journal& journal) : journal(journal) {}

    Size measure(std::string_view text, const Font& font) const override;

private:
    Journal& journal;
};

} // namespace quorvel
