#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/QuorvelApp.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {

// One thing that a person or the desktop does; `choice` says which of its variants.
struct WalkStep {
    enum class Kind {
        hotKey,
        modeKey,
        letter,
        burst, // several keys before any is handled
        click,
        exit,
        togglePreferences,
        changeScreens,
        openWindow,
        closeWindow,
        minimizeOrRestore,
        moveWindow,
        focusWindow,
        changeSetting,
        wait,
    };

    Kind kind = Kind::exit;
    std::uint32_t choice = 0;
};

inline constexpr std::uint32_t walkStepKinds = static_cast<std::uint32_t>(WalkStep::Kind::wait) + 1;

std::string textOf(const WalkStep& step);

// The whole program on a simulated desktop, from a fresh beginning.
class ModeWalker {
public:
    // How often each was there after a step.
    struct Visits {
        std::size_t overlay = 0;
        std::size_t moveResize = 0;
        std::size_t focusSwitcher = 0;
        std::size_t preferences = 0;
        std::size_t snaps = 0;
        std::size_t exits = 0;

        Visits& operator+=(const Visits& other);
    };

    ModeWalker();

    // Takes the steps, and then leaves. Tells what is not as it should be after a step; nothing if all is well.
    std::optional<std::string> walk(const std::vector<WalkStep>& steps);

    const Visits& visits() const { return counted; }

private:
    void take(const WalkStep& step);
    void pressHotKey(std::uint32_t choice);
    void pressModeKey(std::uint32_t choice);
    void pressLetter(std::uint32_t choice);
    void togglePreferences();
    void connectScreens(std::uint32_t choice);
    void openWindow(std::uint32_t choice);
    void changeSetting(std::uint32_t choice);
    SimulatedWindow* anyWindow(std::uint32_t choice);

    enum class Mode { none, labelling, moving }; // labelling: the overlay or the switcher

    void leave();
    void count();
    std::optional<std::string> problem();
    std::optional<std::string> problemOf(Mode mode);
    std::optional<std::string> problemAfterExit();

    MainController& controller() { return app.mainController(); }
    Mode modeOn();

    SimulatedDesktop desktop;
    const Platform platform;
    std::vector<SimulatedApplication*> applications;
    std::vector<SimulatedWindow*> windows;
    QuorvelApp app;
    Visits counted;
    Mode earlierMode = Mode::none; // after the step before
    bool isReleased = false;       // preferences have been opened while this mode is on, which gives the keys back
};

} // namespace quorvel
