#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <utility>

namespace quorvel {

// What a test that lets something go wrong tells for the table in docs/reliability.md: one record for each fault. It is
// written when it goes, into the folder that QUORVEL_RELIABILITY names; without that, nowhere.
class ReliabilityRecord {
public:
    // `desktop` is the heading that the fault stands under, `fault` names it for a person.
    ReliabilityRecord(std::string desktop, std::string fault);
    ReliabilityRecord(const ReliabilityRecord&) = delete;
    ReliabilityRecord& operator=(const ReliabilityRecord&) = delete;
    ~ReliabilityRecord();

    // The fault is about to happen. Whoever does not come to survived() after this has not survived it.
    void tried() { ++timesTried; }

    // One of the things that the person saw of it.
    void saw(std::string what) { everythingSeen.insert(std::move(what)); }

    // All is as it should be afterwards. `seen` is what the person saw of it, the same in every run; empty for nothing.
    void survived(std::string seen);

private:
    std::string text() const;

    std::string desktop;
    std::string fault;
    std::size_t timesTried = 0;
    std::size_t timesSurvived = 0;
    std::set<std::string> everythingSeen;
};

} // namespace quorvel
