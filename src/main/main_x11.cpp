#include <csignal>
#include <cstdlib>
#include <exception>

#include <fmt/format.h>

#include "main/CommandLine.h"
#include "main/DesktopDiagnosis.h"
#include "main/SettingsTransfer.h"
#include "main/Version.h"
#include "main/X11Display.h"
#include "main/X11Program.h"
#include "platform/x11/GlibMainLoop.h"

namespace {

int run(quorvel::StartMode mode)
{
    quorvel::x11::GlibMainLoop loop;
    auto display = quorvel::X11Display::open(loop, mode);
    if (!display) {
        fmt::print(stderr, "{}\n", display.error());
        return EXIT_FAILURE;
    }
    return quorvel::X11Program(loop, std::move(*display)).run();
}

} // namespace

int main(int argc, char** argv)
{
    // A server or a reader of the log that goes away is noticed where it is written to.
    std::signal(SIGPIPE, SIG_IGN);
    const auto commandLine = quorvel::commandLine({argv + 1, argv + argc});
    if (!commandLine) {
        fmt::print(stderr, "{}\n", commandLine.error());
        constexpr int usageStatus = 2;
        return usageStatus;
    }
    switch (commandLine->mode) {
    case quorvel::StartMode::showHelp:
        fmt::print("{}", quorvel::helpText());
        return EXIT_SUCCESS;
    case quorvel::StartMode::showVersion:
        fmt::print("quorvel {}\n", quorvel::version);
        return EXIT_SUCCESS;
    case quorvel::StartMode::exportSettings:
        return quorvel::exportSettings(commandLine->file) ? EXIT_SUCCESS : EXIT_FAILURE;
    case quorvel::StartMode::importSettings:
        return quorvel::importSettings(commandLine->file) ? EXIT_SUCCESS : EXIT_FAILURE;
    case quorvel::StartMode::diagnose:
    case quorvel::StartMode::diagnoseAsJson:
        return quorvel::diagnoseDesktop(commandLine->mode) ? EXIT_SUCCESS : EXIT_FAILURE;
    case quorvel::StartMode::run:
    case quorvel::StartMode::replace:
        return run(commandLine->mode);
    }
}
