#include "support/ProgramUnderTest.h"

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

std::unique_ptr<ChildProcess> startProgram(const XServer& server, const std::filesystem::path& executable,
                                           const TemporaryDirectory& configuration,
                                           const ProgramUnderTest::Options& options)
{
    Command command;
    command.words = {executable.string()};
    command.words.insert(command.words.end(), options.arguments.begin(), options.arguments.end());
    command.environment = server.clientEnvironment();
    command.environment["XDG_CONFIG_HOME"] = configuration.path().string();
    // The program is built with the sanitizers that the test is built with, and links the same libraries.
    if (const char* const leakOptions = std::getenv("LSAN_OPTIONS")) {
        command.environment["LSAN_OPTIONS"] = leakOptions;
    }
    for (const auto& [name, value] : options.environment) {
        command.environment[name] = value;
    }
    return std::make_unique<ChildProcess>(command);
}

} // namespace

bool ProgramUnderTest::Stream::read()
{
    fcntl(descriptor, F_SETFL, O_NONBLOCK);
    std::array<char, 4096> part{};
    for (;;) {
        const auto count = ::read(descriptor, part.data(), part.size());
        if (count <= 0) {
            return count < 0; // zero is the end; less than zero: nothing more for now
        }
        for (const char character : std::string_view(part.data(), static_cast<std::size_t>(count))) {
            if (character == '\n') {
                complete.push_back(std::move(rest));
                rest.clear();
            } else {
                rest.push_back(character);
            }
        }
    }
}

ProgramUnderTest::ProgramUnderTest(const XServer& server, const std::filesystem::path& executable,
                                   const TemporaryDirectory& configuration, const Options& options)
    : process(startProgram(server, executable, configuration, options)),
      output(process->output()),
      errors(process->errors())
{}

std::string ProgramUnderTest::waitForLine(const std::string& what,
                                          const std::function<bool(std::string_view)>& predicate)
{
    const Deadline deadline;
    for (;;) {
        const bool open = output.read();
        while (consumed < output.lines().size()) {
            const std::string& line = output.lines()[consumed];
            ++consumed;
            if (predicate(line)) {
                return line;
            }
        }
        if (!open) {
            errors.read();
            throw HarnessError(fmt::format("the program ended before it printed {}; it printed:\n{}\n{}", what,
                                           fmt::join(output.lines(), "\n"), fmt::join(errors.lines(), "\n")));
        }
        try {
            waitUntilReadable(output.source(), deadline, "the line " + what);
        } catch (const HarnessError& error) {
            errors.read();
            throw HarnessError(fmt::format("{}; the program printed:\n{}\n{}", error.what(),
                                           fmt::join(output.lines(), "\n"), fmt::join(errors.lines(), "\n")));
        }
    }
}

std::string ProgramUnderTest::waitForLine(const std::string& line)
{
    return waitForLine("\"" + line + "\"", [&](std::string_view candidate) { return candidate == line; });
}

std::string ProgramUnderTest::waitForLineStartingWith(const std::string& beginning)
{
    return waitForLine("\"" + beginning + "…\"",
                       [&](std::string_view candidate) { return candidate.starts_with(beginning); });
}

const std::vector<std::string>& ProgramUnderTest::outputLines()
{
    output.read();
    return output.lines();
}

const std::vector<std::string>& ProgramUnderTest::errorLines()
{
    errors.read();
    return errors.lines();
}

void ProgramUnderTest::forgetOutput()
{
    output.read();
    output.forget();
    consumed = 0;
}

int ProgramUnderTest::end(int signal)
{
    process->sendSignal(signal);
    return waitForEnd();
}

int ProgramUnderTest::waitForEnd()
{
    const int status = process->waitForEnd();
    output.read();
    errors.read();
    return status;
}

} // namespace quorvel::xtest
