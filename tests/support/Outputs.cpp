#include "support/Outputs.h"

#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "support/ChildProcess.h"
#include "support/Patience.h"

namespace quorvel::xtest {

void Outputs::arrange(const std::vector<Monitor>& monitors)
{
    std::vector<std::string> words;
    for (std::size_t i = 0; i < std::max(monitors.size(), used); ++i) {
        const auto output = fmt::format("DUMMY{}", i);
        words.insert(words.end(), {"--output", output});
        if (i >= monitors.size()) {
            words.emplace_back("--off");
            continue;
        }
        const Monitor& monitor = monitors[i];
        words.insert(words.end(), {"--mode", modeOf(monitor, output), "--pos",
                                   fmt::format("{}x{}", monitor.rect.x, monitor.rect.y)});
        if (monitor.role == MonitorRole::primary) {
            words.emplace_back("--primary");
        }
    }
    configure(words);
    configure({"--query"}); // the driver calls an output connected only when asked after it got a mode
    used = monitors.size();
    client.waitFor("the outputs to be arranged", [&] {
        return std::ranges::is_permutation(Monitors(client).current(), monitors, {}, &Monitor::rect, &Monitor::rect);
    });
}

std::string Outputs::modeOf(const Monitor& monitor, const std::string& output)
{
    const int width = monitor.rect.width;
    const int height = monitor.rect.height;
    const auto mode = fmt::format("test-{}x{}", width, height);
    if (modes.insert(mode).second) {
        // The driver shows anything; of the timings it is only asked that they grow.
        std::vector<std::string> words{"--newmode", mode, "100"};
        for (const int size : {width, height}) {
            for (const int margin : {0, 8, 16, 24}) {
                words.push_back(std::to_string(size + margin));
            }
        }
        configure(words);
    }
    if (modesOfOutputs.insert(output + mode).second) {
        configure({"--addmode", output, mode});
    }
    return mode;
}

void Outputs::configure(const std::vector<std::string>& words)
{
    Command command{.words = {"xrandr"}, .environment = server.clientEnvironment()};
    command.words.insert(command.words.end(), words.begin(), words.end());
    if (const int status = ChildProcess(command).waitForEnd(); status != 0) {
        throw HarnessError(fmt::format("{} ended with {}", fmt::join(command.words, " "), status));
    }
}

} // namespace quorvel::xtest
