#include "support/ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

// Large enough that no client of a test ever blocks on output that nobody reads.
constexpr int pipeCapacity = 1 << 20;

struct Pipe {
    FileDescriptor reading;
    FileDescriptor writing;
};

Pipe makePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw HarnessError("cannot create a pipe");
    }
    fcntl(ends[1], F_SETPIPE_SZ, pipeCapacity);
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Runs in the child between fork and exec, so it only makes system calls.
[[noreturn]] void becomeProgram(const char* path, char* const* words, char* const* environment, int output, int errors,
                                std::optional<int> descriptor)
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nothing = open("/dev/null", O_RDONLY);
    dup2(nothing, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    if (descriptor == 3) {
        fcntl(3, F_SETFD, 0); // dup2 onto itself would leave it to be closed
    } else if (descriptor) {
        dup2(*descriptor, 3);
    }
    execve(path, words, environment);
    _exit(127);
}

} // namespace

ChildProcess::ChildProcess(const Command& command) : name(command.words.front())
{
    const auto program = findProgram(name);
    if (!program) {
        throw HarnessError(fmt::format("{} is not installed", name));
    }
    const std::string path = program->string();
    auto words = command.words;
    std::vector<std::string> variables;
    variables.reserve(command.environment.size());
    for (const auto& [variable, value] : command.environment) {
        variables.push_back(variable + "=" + value);
    }
    const auto wordPointers = pointersTo(words);
    const auto variablePointers = pointersTo(variables);
    auto output = makePipe();
    auto errors = makePipe();

    process = fork();
    if (process < 0) {
        throw HarnessError(fmt::format("cannot start {}", name));
    }
    if (process == 0) {
        becomeProgram(path.c_str(), wordPointers.data(), variablePointers.data(), output.writing.get(),
                      errors.writing.get(), command.descriptor);
    }
    setpgid(process, process); // in both processes, so that whoever comes first settles it
    // By number: glibc 2.36 declares the wrapper without C linkage.
    processDescriptor = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    outputEnd = std::move(output.reading);
    errorsEnd = std::move(errors.reading);
}

ChildProcess::~ChildProcess()
{
    if (process > 0 && processDescriptor.get() >= 0) {
        kill();
    }
}

void ChildProcess::sendSignal(int number) const
{
    if (!hasEnded()) {
        ::kill(process, number);
    }
}

void ChildProcess::sendSignalToGroup(int number) const
{
    if (!hasEnded()) {
        ::kill(-process, number);
    }
}

int ChildProcess::waitForEnd()
{
    if (status) {
        return *status;
    }
    waitUntilReadable(processDescriptor.get(), Deadline(), fmt::format("the end of {}", name));
    int raw = 0;
    waitpid(process, &raw, 0);
    status = WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw);
    return *status;
}

void ChildProcess::kill()
{
    ::kill(-process, SIGKILL); // also what the program left behind in its group
    if (!hasEnded()) {
        int raw = 0;
        waitpid(process, &raw, 0);
        status = WIFEXITED(raw) ? WEXITSTATUS(raw) : 128 + WTERMSIG(raw);
    }
}

std::optional<std::filesystem::path> findProgram(const std::string& name)
{
    if (name.find('/') != std::string::npos) {
        return access(name.c_str(), X_OK) == 0 ? std::optional<std::filesystem::path>(name) : std::nullopt;
    }
    const char* path = std::getenv("PATH");
    std::istringstream folders(path != nullptr ? path : "/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const auto candidate = std::filesystem::path(folder) / name;
        if (access(candidate.c_str(), X_OK) == 0) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace quorvel::xtest
