#pragma once

#include <functional>
#include <memory>

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

private:
    // What the keys mean in one run.
    struct Showing {
        FocusToggleKeys toggles;
        FocusLabels labels;
    };

    void showLabels(const FocusLabels& labels);
    void showPanels(const FocusCandidates& candidates, const FocusLabels& labels);
    void captureKeys(std::shared_ptr<const Showing> showing);
    void watchMouse();

    void handleKey(const Showing& showing, const CapturedKey& key);
    void toggle(bool& isPanelVisible, bool hasPanels);
    void choose(const std::string& label, const Showing& showing);
    void focus(const FocusWindowInfo& window);
    void restore(const MinimizedWindowInfo& window);
    void raiseExactly(const FocusWindowInfo& window);
    void activate(ProcessId process);

    ModeEnvironment environment;
    ModeState& state;
    std::function<void()> dismiss;
    FocusPanels panels;
    WeakGuard weakly;
};

} // namespace quorvel
