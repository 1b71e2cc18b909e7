#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "app/ArrowKey.h"
#include "app/CycledWindows.h"
#include "app/ModeEnvironment.h"
#include "app/SnapSearch.h"
#include "base/WeakGuard.h"
#include "settings/MoveResizeKeys.h"
#include "settings/MoveResizeSettings.h"
#include "system/CapturedKey.h"

namespace quorvel {

struct ModeState;

// The move/resize mode: direction keys move the frontmost window, with a modifier they resize it, and its edges snap to
// those of other windows; further keys go on to the next window, minimize it, or leave the mode. All other keys keep
// reaching the frontmost application. The mode is on while ModeState::moveResizeElement is present.
class MoveResizeMode {
public:
    // `modes` outlives the mode.
    MoveResizeMode(ModeEnvironment environment, ModeState& modes);

    // Begins with the frontmost window; where there is none, a line in the log says so. Ends the mode if it is on.
    void toggle();

    // Takes down what the mode shows and forgets the window; the keys are the caller's to release.
    void leave();

private:
    // What one run of the mode keeps. The settings are those of its beginning.
    struct Run {
        MoveResizeSettings settings;
        CycledWindows windows;
        MoveResizeKeys keys;
        bool isSnapped = false;
        std::int64_t resistanceCount = 0; // direction keys since the window snapped
    };

    void enter();
    void captureKeys();
    void handleKey(const CapturedKey& key);

    void pressArrow(ArrowKey key, ArrowEffect effect);
    bool isHeldBySnap();
    AxRect snapped(const SnapStep& step);
    AxRect limited(const AxRect& rect);
    void endSnap();
    void hideSnapTarget() const;

    void cycle(CycleDirection direction);
    bool continueWith(std::size_t index);
    void minimize();
    bool continueAfterMinimizing();
    void refreshFrameSoon();

    void end();
    void releaseBlocker() const;

    ModeEnvironment environment;
    ModeState& modes;
    std::optional<Run> run; // present while the mode is on
    WeakGuard weakly;
};

} // namespace quorvel
