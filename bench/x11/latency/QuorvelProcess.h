#pragma once

#include <memory>
#include <string_view>

#include "latency/BenchDesktop.h"
#include "support/ProgramUnderTest.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::bench {

// The measured program with these settings, ready when the constructor returns.
class QuorvelProcess {
public:
    QuorvelProcess(BenchDesktop& desktop, std::string_view settings);

    // Keeps its output from filling up; a program that cannot write its log stands still.
    void drainOutput() { program.outputLines(); }

private:
    std::unique_ptr<xtest::TemporaryDirectory> configuration;
    xtest::ProgramUnderTest program;
};

} // namespace quorvel::bench
