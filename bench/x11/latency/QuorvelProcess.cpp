#include "latency/QuorvelProcess.h"

namespace quorvel::bench {

namespace {

std::unique_ptr<xtest::TemporaryDirectory> configurationWith(std::string_view settings)
{
    auto configuration = std::make_unique<xtest::TemporaryDirectory>();
    configuration->write("quorvel/settings.plist", settings);
    return configuration;
}

} // namespace

QuorvelProcess::QuorvelProcess(BenchDesktop& desktop, std::string_view settings)
    : configuration(configurationWith(settings)), program(desktop.display(), QUORVEL_PROGRAM, *configuration)
{
    program.waitForLineStartingWith("Registered hotkey id=3");
    desktop.eventProbe().rest();
}

} // namespace quorvel::bench
