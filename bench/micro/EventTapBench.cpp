// The decision that every key press of the session waits for.
#include <optional>
#include <utility>

#include <benchmark/benchmark.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "system/GlobalEventBlocker.h"

namespace quorvel {
namespace {

class CapturedTap final : public EventTap {
public:
    bool createRunLoopSource() override { return true; }
    void addSourceToRunLoop() override {}
    void removeSourceFromRunLoop() override {}
    void setEnabled(bool) override {}
    bool setKeysOfInterest(const KeyCodeSet&) override { return true; }
};

// Keeps the callback for the benchmark to call, as the system would.
class CapturingTaps final : public EventTaps {
public:
    std::unique_ptr<EventTap> createTap(const EventTapDescription&, EventTapCallback tapCallback) override
    {
        callback = std::move(tapCallback);
        return std::make_unique<CapturedTap>();
    }

    EventTapCallback callback;
};

class KeyDown final : public TapEvent {
public:
    explicit KeyDown(KeyCode code) : code(code) {}

    TapEventType type() const override { return TapEventType::keyDown; }
    KeyCode keyCode() const override { return code; }
    std::optional<KeyEvent> keyEvent() const override { return KeyEvent{code, "x", 0}; }

private:
    KeyCode code;
};

void decide(benchmark::State& state, const KeyCodeSet& blocked, KeyCode pressed)
{
    SimulatedDesktop desktop;
    CapturingTaps taps;
    const auto base = desktop.platform();
    const Platform platform{base.log,
                            base.mainQueue,
                            base.userDefaults,
                            base.notificationCenter,
                            base.bundle,
                            base.dates,
                            base.accessibility,
                            base.hotKeys,
                            taps,
                            base.windowList,
                            base.workspace,
                            base.screens,
                            base.keyboardLayout,
                            base.eventMonitors,
                            base.overlayWindows,
                            base.textMetrics,
                            base.systemColors,
                            base.statusBar,
                            base.permissions,
                            base.alerts};
    GlobalEventBlocker blocker(platform);
    blocker.start();
    blocker.setBlockedKeyCodes(blocked);
    const KeyDown event(pressed);
    for (auto _ : state) {
        benchmark::DoNotOptimize(taps.callback(event));
    }
    blocker.stop();
}

void keyThatPassesWithoutMode(benchmark::State& state)
{
    decide(state, {}, 31);
}
BENCHMARK(keyThatPassesWithoutMode);

void keyThatPassesInMoveResizeMode(benchmark::State& state)
{
    decide(state, {123, 124, 125, 126, 48, 53, 46}, 31);
}
BENCHMARK(keyThatPassesInMoveResizeMode);

} // namespace
} // namespace quorvel
