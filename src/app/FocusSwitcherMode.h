#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "app/FocusPanels.h"
#include "app/ModeEnvironment.h"
#include "base/WeakGuard.h"
#include "system/CapturedKey.h"

namespace quorvel {

struct ModeState;

// The focus switcher: a letter on every window, and lists of them. A letter brings its window's application forward or
// restores a minimized window; two keys show the lists; everything else, a click too, ends it.
class FocusSwitcherMode {
public:
    // `dismiss` takes the whole switcher down.
    FocusSwitcherMode(ModeEnvironment environment, ModeState& state, std::function<void()> dismiss);

    // Labels the windows there are and takes the keyboard. Without any window a line in the log says so.
    void start();

    // Forgets the run, so that keys that were typed in it and arrive later mean nothing; what it shows is the caller's
    // to take down.
    void leave() { current.reset(); }

private:
    // What the keys mean in one run.
    struct Showing {
        FocusToggleKeys toggles;
        FocusLabels labels;
    };

    void showLabels(const FocusLabels& labels);
    void showPanels(const FocusCandidates& candidates, const FocusLabels& labels);
    void captureKeys();
    void watchMouse();

    void handleKey(const Showing& showing, const CapturedKey& key);
    void toggle(bool& isPanelVisible, const std::vector<std::unique_ptr<OverlayWindow>>& shownPanels);
    void choose(const std::string& label, const Showing& showing);
    void focus(const FocusWindowInfo& window);
    void restore(const MinimizedWindowInfo& window);
    void raiseExactly(const FocusWindowInfo& window);
    void activate(ProcessId process);

    ModeEnvironment environment;
    ModeState& state;
    std::function<void()> dismiss;
    FocusPanels panels;
    std::shared_ptr<const Showing> current; // present while the switcher is up
    WeakGuard weakly;
};

} // namespace quorvel
