#include "doctor/Diagnosis.h"

#include <algorithm>

namespace quorvel {

bool Diagnosis::isFit() const
{
    return std::ranges::none_of(sections, [](const DiagnosisSection& section) {
        return std::ranges::any_of(section.findings,
                                   [](const Finding& finding) { return finding.verdict == Verdict::problem; });
    });
}

} // namespace quorvel
