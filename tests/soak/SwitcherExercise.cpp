#include "soak/Exercise.h"
#include "soak/KeyDriver.h"

namespace quorvel::soak {
namespace {

class SwitcherExercise : public Exercise {
public:
    explicit SwitcherExercise(SoakDesktop& desktop) : desktop(desktop), keys(desktop) {}

    std::string name() const override { return "switcher cycles"; }
    std::string latency() const override { return "hot key to the last letter"; }

    Milliseconds cycle() override
    {
        constexpr std::size_t letters = 2 * SoakDesktop::visibleWindowCount; // a border and a label each
        auto& client = desktop.display.client;
        const auto before = client.activeWindow();
        const auto time = keys.show(e2e::RunningQuorvel::switcherHotKey(), letters);
        keys.type(XKB_KEY_m, letters + 1);
        keys.type(XKB_KEY_Tab, letters + 2);
        desktop.display.keyboard.tap(XKB_KEY_b); // the second from the front
        client.waitFor("another window to be active", [&] {
            const auto active = client.activeWindow();
            return active != XCB_NONE && active != before;
        });
        keys.waitUntilIdle();
        return time;
    }

private:
    SoakDesktop& desktop;
    KeyDriver keys;
};

} // namespace

std::unique_ptr<Exercise> switcherExercise(SoakDesktop& desktop)
{
    return std::make_unique<SwitcherExercise>(desktop);
}

} // namespace quorvel::soak
