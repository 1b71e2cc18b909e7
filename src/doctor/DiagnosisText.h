#pragma once

#include <string>

namespace quorvel {

struct Diagnosis;

// Lines for a person, the last of which sums up.
std::string diagnosisText(const Diagnosis& diagnosis);

// One JSON object in lines:
//
//   {
//     "version": "1.2.3", "fit": false,
//     "sections": [{"id": "…", "title": "…", "findings": [
//       {"id": "…", "verdict": "good|notice|problem", "text": "…", "advice": "…", "details": {…}}]}]
//   }
//
// "advice" and "details" are left out where there are none. Text that is not UTF-8 has replacement characters.
std::string diagnosisJson(const Diagnosis& diagnosis);

} // namespace quorvel
