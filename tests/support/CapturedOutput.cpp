#include "support/CapturedOutput.h"

#include <array>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::xtest {

// A pipe in packet mode keeps the writes apart.
CapturedOutput::CapturedOutput()
{
    std::fflush(stdout);
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_DIRECT | O_NONBLOCK | O_CLOEXEC) != 0) {
        throw HarnessError("No pipe for the output of the test");
    }
    reading = FileDescriptor(ends[0]);
    const FileDescriptor writing(ends[1]);
    original = FileDescriptor(dup(STDOUT_FILENO));
    dup2(writing.get(), STDOUT_FILENO);
}

CapturedOutput::~CapturedOutput()
{
    std::fflush(stdout);
    dup2(original.get(), STDOUT_FILENO);
}

std::vector<std::string> CapturedOutput::pieces()
{
    std::vector<std::string> result;
    std::array<char, 4096> piece{};
    for (ssize_t size = 0; (size = read(reading.get(), piece.data(), piece.size())) > 0;) {
        result.emplace_back(piece.data(), static_cast<std::size_t>(size));
    }
    return result;
}

} // namespace quorvel::xtest
