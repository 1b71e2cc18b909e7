#pragma once

#include <optional>
#include <vector>

#include "platform/Screens.h"

namespace quorvel {

class Journal;
class SimulatedWindowServer;

// One display of 1440 by 900 points with a menu bar, until others are connected.
class SimulatedScreens final : public Screens {
public:
    SimulatedScreens(Journal& journal, const SimulatedWindowServer& windowServer);

    std::vector<Screen> screens() override;
    // The display that shows most of the window with the keyboard; the primary one where there is none.
    std::optional<Screen> mainScreen() override;

    // Replaces all displays; the first one is the primary one. Each gets an id of its own if it has none.
    void connect(std::vector<Screen> screens);
    // Adds a display and returns its id.
    std::uint64_t add(const ScreenRect& frame, const ScreenRect& visibleFrame);
    void remove(std::uint64_t id);
    void resize(std::uint64_t id, const ScreenRect& frame, const ScreenRect& visibleFrame);

    // Between the two spaces, by the height of the primary display.
    AxRect flipped(const ScreenRect& rect) const;
    ScreenRect flipped(const AxRect& rect) const;

private:
    double primaryHeight() const { return connected.empty() ? 0.0 : connected.front().frame.height; }
    void giveId(Screen& screen);

    Journal& journal;
    const SimulatedWindowServer& windowServer;
    std::vector<Screen> connected;
    std::uint64_t nextId = 1;
};

} // namespace quorvel
