#include "latency/QuorvelProcess.h"

namespace quorvel::bench {

namespace {

const xtest::TemporaryDirectory& withSettings(const xtest::TemporaryDirectory& configuration, std::string_view settings)
{
    configuration.write("quorvel/settings.plist", settings);
    return configuration;
}

} // namespace

QuorvelProcess::QuorvelProcess(BenchDesktop& desktop, std::string_view settings)
    : program(desktop.display(), QUORVEL_PROGRAM, withSettings(configuration, settings))
{
    program.waitForLineStartingWith("Registered hotkey id=3");
    desktop.eventProbe().rest();
}

} // namespace quorvel::bench
