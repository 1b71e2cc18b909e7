#pragma once

#include <string>
#include <vector>

#include "platform/PropertyValue.h"

namespace quorvel {

// A notice tells of something that is less than it could be; a problem keeps the program from doing its work.
enum class Verdict { good, notice, problem };

struct Finding {
    std::string id; // the same in every version: scripts know it
    Verdict verdict = Verdict::good;
    std::string text{};   // a sentence for a person
    std::string advice{}; // what that person can do, a sentence; may be empty
    PropertyDictionary details{};

    bool operator==(const Finding&) const = default;
};

struct DiagnosisSection {
    std::string id;
    std::string title;
    std::vector<Finding> findings;

    bool operator==(const DiagnosisSection&) const = default;
};

// What a desktop offers and what stands in the way, as data.
struct Diagnosis {
    std::string version; // of the program
    std::vector<DiagnosisSection> sections;

    // Everything is there that the program needs.
    bool isFit() const;

    bool operator==(const Diagnosis&) const = default;
};

} // namespace quorvel
