#pragma once

#include <memory>
#include <optional>

#include "base/Geometry.h"
#include "system/CurrentScreen.h"

namespace quorvel {

struct Platform;

enum class ScreenStep { next, previous };

// Chooses the current screen, and converts between accessibility and screen coordinates. A model has no state of its
// own: all models made with one CurrentScreen are interchangeable. Screens count in the platform's order, the primary
// one first, as they are at the moment of a call; nothing here follows their changes.
class ScreensModel {
public:
    ScreensModel(const Platform& platform, std::shared_ptr<CurrentScreen> current);

    // Absent until a screen was selected for the first time.
    const std::optional<Screen>& currentScreen() const;

    // Makes the screen that shows the largest part of the rectangle current, the earlier one on a tie. False, and
    // nothing changed, when no screen shows any of it.
    bool selectScreenForWindowRect(const AxRect& rect);

    // Makes the following or the preceding screen current, wrapping round. Nothing while there is no current screen. A
    // current screen that is no longer attached is a fatal error: select a screen for a rectangle first.
    std::optional<ScreensModel> nextScreen();
    std::optional<ScreensModel> previousScreen();

    // The same for whoever does not know whether the current screen is still attached: nothing if it is not.
    std::optional<ScreensModel> neighbour(ScreenStep step) const;

    // The flip by the height of the primary screen, in both directions; without screens only the type changes.
    static ScreenRect appKitRectFromAccessibility(const Platform& platform, const AxRect& rect);
    static AxRect accessibilityRectFromAppKit(const Platform& platform, const ScreenRect& rect);

private:
    std::optional<ScreensModel> attachedNeighbour(ScreenStep step) const;

    const Platform* platform;
    std::shared_ptr<CurrentScreen> current;
};

} // namespace quorvel
