#pragma once

#include <map>

#include <Carbon/Carbon.h>

#include "platform/HotKeys.h"

namespace quorvel::macos {

class MacHotKeys final : public HotKeys {
public:
    MacHotKeys() = default;
    MacHotKeys(const MacHotKeys&) = delete;
    MacHotKeys& operator=(const MacHotKeys&) = delete;
    ~MacHotKeys() override;

    OsStatus installHandler(HotKeyHandler newHandler) override;
    void removeHandler() override;
    HotKeyRegistration registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id) override;
    OsStatus unregisterHotKey(HotKeyRef ref) override;

private:
    static OSStatus pressed(EventHandlerCallRef call, EventRef event, void* context);

    HotKeyHandler handler;
    EventHandlerRef installed = nullptr;
    std::map<HotKeyRef, EventHotKeyRef> hotKeys;
    HotKeyRef nextRef = 1;
};

} // namespace quorvel::macos
