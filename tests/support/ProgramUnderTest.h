#pragma once

#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// A started program whose output the test reads line by line, with a configuration folder of its own.
class ProgramUnderTest {
public:
    struct Options {
        std::vector<std::string> arguments{};
        std::map<std::string, std::string> environment{}; // added to the server's client environment
    };

    // The configuration folder outlives the program, so that a second run finds what the first one left.
    ProgramUnderTest(const XServer& server, const std::filesystem::path& executable,
                     const TemporaryDirectory& configuration, const Options& options);
    ProgramUnderTest(const XServer& server, const std::filesystem::path& executable,
                     const TemporaryDirectory& configuration)
        : ProgramUnderTest(server, executable, configuration, Options())
    {}

    pid_t id() const { return process->id(); }

    // Waits until standard output has a further line that the predicate takes, and returns it. Lines are consumed in
    // order: the next wait starts after the returned one.
    std::string waitForLine(const std::string& what, const std::function<bool(std::string_view)>& predicate);
    std::string waitForLine(const std::string& line);
    std::string waitForLineStartingWith(const std::string& beginning);

    // Everything that has been printed so far.
    const std::vector<std::string>& outputLines();
    const std::vector<std::string>& errorLines();

    // Lets go of the lines of standard output so far, waited for or not.
    void forgetOutput();

    // Sends the signal and waits for the end: the exit status, or 128 + the signal's number.
    int end(int signal = SIGTERM);
    int waitForEnd();

private:
    // One of the two streams, cut into lines.
    class Stream {
    public:
        explicit Stream(int descriptor) : descriptor(descriptor) {}

        int source() const { return descriptor; }
        const std::vector<std::string>& lines() const { return complete; }

        void forget() { complete.clear(); }

        // Takes what can be read without waiting; false once the stream has ended.
        bool read();

    private:
        int descriptor;
        std::string rest;
        std::vector<std::string> complete;
    };

    std::unique_ptr<ChildProcess> process;
    Stream output;
    Stream errors;
    std::size_t consumed = 0;
};

} // namespace quorvel::xtest
