#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "support/FileDescriptor.h"

namespace quorvel::xtest {

// A program to start. The environment holds exactly what is given: nothing of the desktop that runs the tests leaks in.
struct Command {
    std::vector<std::string> words;
    std::map<std::string, std::string> environment{};
    std::optional<int> descriptor{}; // handed down to the child as its descriptor 3
};

// A started program in its own process group. Its output is kept apart from the test's. On destruction the whole group
// is killed; it also goes when the test itself dies.
class ChildProcess {
public:
    explicit ChildProcess(const Command& command);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess(ChildProcess&&) noexcept = default;
    ~ChildProcess();

    ChildProcess& operator=(const ChildProcess&) = delete;
    ChildProcess& operator=(ChildProcess&&) = delete;

    pid_t id() const { return process; }
    void sendSignal(int number) const;
    void sendSignalToGroup(int number) const;

    // Waits for the end: the exit status, or 128 + the signal's number, as a shell has it.
    int waitForEnd();
    bool hasEnded() const { return status.has_value(); }

    // The read ends of the child's standard output and standard error.
    int output() const { return outputEnd.get(); }
    int errors() const { return errorsEnd.get(); }

    // Readable once the process has ended.
    int endDescriptor() const { return processDescriptor.get(); }

    // Stops the whole group at once and reaps the child.
    void kill();

private:
    std::string name;
    pid_t process = 0;
    FileDescriptor processDescriptor;
    FileDescriptor outputEnd;
    FileDescriptor errorsEnd;
    std::optional<int> status;
};

// The path of a program on PATH, or nothing.
std::optional<std::filesystem::path> findProgram(const std::string& name);

} // namespace quorvel::xtest
