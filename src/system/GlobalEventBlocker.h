#pragma once

#include <memory>
#include <optional>

#include "base/KeyCodeSet.h"
#include "base/Keys.h"
#include "base/WeakGuard.h"
#include "platform/EventTaps.h"
#include "platform/ProcessId.h"
#include "system/CapturedKey.h"
#include "system/KeyQueue.h"

namespace quorvel {

class KeyCapturePanel;
struct Platform;

// Keeps chosen keys from the frontmost application and hands them to a mode: by an event tap or, where there is none,
// by a panel that takes the focus for the duration of the mode and gives it back.
//
// A mode sets the keys and the handler, and clears the keys when it ends. Main thread only.
class GlobalEventBlocker {
public:
    explicit GlobalEventBlocker(const Platform& platform);
    GlobalEventBlocker(const GlobalEventBlocker&) = delete;
    GlobalEventBlocker& operator=(const GlobalEventBlocker&) = delete;
    ~GlobalEventBlocker();

    // Creates and enables the event tap, if there is none. A failure is logged; the panel then stands in.
    void start();

    // Gives up the tap, hides the panel and gives the focus back. The blocked keys stay.
    void stop();

    // False also while the tap that exists was refused the keys of the running mode; the panel then stands in until
    // the keys are cleared.
    bool hasEventTap() const;

    const KeyCodeSet& blockedKeyCodes() const;
    void setBlockedKeyCodes(KeyCodeSet keyCodes);

    // Adds every key there is, and shows the panel where there is no tap.
    void blockAllKeys();

    // The tap's keys reach the handler in a later turn of the main queue, the panel's at once; of several, each after
    // what the one before it has set going. Setting a handler, not taking it away with an empty one, shows the panel if
    // there are keys to block and no tap.
    void setOnBlockKey(CapturedKeyHandler handler);

    // Shows the panel, unless it has the focus already, and remembers who had it.
    void showKeyCapturePanel();

    // While the panel has the focus: gives it to this process later, instead of the one that had it.
    void setPreviousApp(ProcessId process);

    // After an application was activated in the midst of a mode: if the panel is in use, it takes the focus back, and
    // that application gets it in the end.
    void keepKeysFrom(ProcessId activated);

    // Empties the set, hides the panel and gives the focus back.
    void clearBlockedKeys();

private:
    TapDecision decide(const TapEvent& event);
    void handle(const CapturedKey& key) const;
    void announceBlockedKeys();
    void takeFocus();
    void hideKeyCapturePanel();

    const Platform& platform;
    std::unique_ptr<EventTap> eventTap;
    bool hasRunLoopSource = false;
    bool isTapRefusedKeys = false;
    KeyCodeSet keyCodes;
    std::unique_ptr<KeyCapturePanel> keyCapturePanel;
    std::optional<ProcessId> previousApp;
    CapturedKeyHandler onBlockKey;
    KeyQueue keys;
    WeakGuard weakly;
};

} // namespace quorvel
