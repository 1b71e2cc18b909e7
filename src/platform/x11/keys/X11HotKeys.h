#pragma once

#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "base/Signal.h"
#include "base/Subscription.h"
#include "platform/HotKeys.h"
#include "platform/x11/keys/HeldHotKey.h"
#include "platform/x11/keys/KeyEvents.h"
#include "platform/x11/keys/KeyGrabs.h"

namespace quorvel::x11 {

class Keyboard;

// Hot keys as passive grabs, one for each state of the locks.
class X11HotKeys final : public HotKeys {
public:
    X11HotKeys(Keyboard& keyboard, KeyGrabs& grabs, KeyEvents& events);
    X11HotKeys(const X11HotKeys&) = delete;
    X11HotKeys& operator=(const X11HotKeys&) = delete;
    ~X11HotKeys() override;

    OsStatus installHandler(HotKeyHandler handler) override;
    void removeHandler() override;
    HotKeyRegistration registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id) override;
    OsStatus unregisterHotKey(HotKeyRef ref) override;

    // Those that come to this program in every state of the locks.
    std::vector<HeldHotKey> held() const;

    // Runs the handler after each change of held(), until the token goes.
    Subscription observeHeld(std::function<void()> changed) { return heldChanged.observe(std::move(changed)); }

private:
    struct HotKey {
        KeyCode keyCode = 0;
        std::uint32_t modifiers = 0;
        HotKeyId id;
        KeyGrabs::Combinations combinations; // what is grabbed for it
    };

    KeyGrabs::Combinations takeWhatIsFree(const KeyGrabs::Combinations& combinations);
    const HotKey* find(KeyCode keyCode, std::uint32_t modifiers) const;
    StrokeOutcome handlePress(const KeyStroke& stroke);
    void grabAnew();

    Keyboard& keyboard;
    KeyGrabs& grabs;
    KeyEvents& events;
    HotKeyHandler handler;
    std::map<HotKeyRef, HotKey> hotKeys;
    HotKeyRef nextRef = 1;
    Signal<> heldChanged;
    Subscription mappingSubscription;
};

} // namespace quorvel::x11
