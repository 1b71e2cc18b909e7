#pragma once

#include <string>
#include <vector>

#include "support/FileDescriptor.h"

namespace quorvel::xtest {

// Takes this process's standard output while it lives.
class CapturedOutput {
public:
    CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    ~CapturedOutput();

    CapturedOutput& operator=(const CapturedOutput&) = delete;

    // What has left the process since the last call, one text for each write. What still waits in a buffer is missing.
    std::vector<std::string> pieces();

private:
    FileDescriptor original;
    FileDescriptor reading;
};

} // namespace quorvel::xtest
