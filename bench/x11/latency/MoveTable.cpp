#include "latency/MoveTable.h"

#include <fmt/format.h>

#include "latency/BenchDesktop.h"
#include "latency/Measurements.h"
#include "support/Patience.h"

namespace quorvel::bench {

namespace {

// Without snapping, so that every press goes a whole step.
constexpr auto settings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>mrSnapEnabled</key><false/>
</dict></plist>
)";

const Chord modeHotKey{{XKB_KEY_Super_L, XKB_KEY_Alt_L}, XKB_KEY_r};
const Chord superF10{{XKB_KEY_Super_L}, XKB_KEY_F10};

std::string text(const xtest::PixelRect& rect)
{
    return fmt::format("{},{},{},{}", rect.x, rect.y, rect.width, rect.height);
}

} // namespace

Report moveReport(int runs)
{
    BenchDesktop desktop(Compositing::off);
    auto& probe = desktop.eventProbe();
    const auto start = probe.frameOf(probe.topLevelOf(desktop.target()));
    auto aside = start;
    aside.x += 20;
    std::vector<Row> rows;
    {
        QuorvelProcess quorvel(desktop, settings);
        if (!probe.pressUntilPainted(modeHotKey, 1)) {
            throw xtest::HarnessError("the move/resize mode did not come up");
        }
        rows.push_back({"Quorvel, arrow to moved window",
                        placementTimes(desktop, runs, {Chord{{}, XKB_KEY_Right}, Chord{{}, XKB_KEY_Left}},
                                       [&] { quorvel.drainOutput(); })});
    }
    {
        const auto minimal =
            desktop.start({QUORVEL_MINIMAL_PLACE, fmt::format("{:#x}", desktop.target()), text(aside), text(start)});
        probe.rest();
        rows.push_back({"minimal xcb, one request on a hot key", placementTimes(desktop, runs, {superF10, superF10})});
    }
    return Report("Arrow key to moved window, openbox", std::move(rows));
}

} // namespace quorvel::bench
