#include "e2e/TitledWindows.h"
#include "soak/Exercise.h"

namespace quorvel::soak {
namespace {

class PreferencesExercise : public Exercise {
public:
    explicit PreferencesExercise(SoakDesktop& desktop) : desktop(desktop), windows(desktop.display) {}

    std::string name() const override { return "preference openings"; }
    std::string latency() const override { return "click into the tray to the window with the keyboard"; }

    // Two observers of the closing, 577 bytes. Each is told of every later closing, which takes as much again for a
    // moment.
    int keptBytes() const override { return 1024; }

    Milliseconds cycle() override
    {
        const auto begin = std::chrono::steady_clock::now();
        desktop.menu().choose(e2e::TrayMenu::Entry::preferences, desktop.quorvel());
        windows.waitUntilActive("Preferences");
        const auto end = std::chrono::steady_clock::now();
        for (const xcb_keysym_t tab : {XKB_KEY_2, XKB_KEY_3, XKB_KEY_4, XKB_KEY_5, XKB_KEY_6, XKB_KEY_1}) {
            desktop.display.keyboard.tap({xtest::KeyInjector::Modifier::control}, tab);
        }
        desktop.display.keyboard.tap(XKB_KEY_Escape);
        windows.waitUntilClosed("Preferences");
        desktop.quorvel().waitUntilHotKeysResume(++openings);
        return end - begin;
    }

private:
    SoakDesktop& desktop;
    e2e::TitledWindows windows;
    int openings = 0;
};

} // namespace

std::unique_ptr<Exercise> preferencesExercise(SoakDesktop& desktop)
{
    return std::make_unique<PreferencesExercise>(desktop);
}

} // namespace quorvel::soak
