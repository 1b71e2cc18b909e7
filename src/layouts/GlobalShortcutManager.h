#pragma once

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

#include "base/Action.h"
#include "base/WeakGuard.h"
#include "layouts/HashableHotKeyID.h"
#include "platform/HotKeys.h"

namespace quorvel {

class Log;
class MainQueue;

// The global hot keys that are registered at present, and what each of them does. Failures of the platform are logged
// and leave no trace in here.
class GlobalShortcutManager {
public:
    using Handler = std::function<void(Action)>;

    GlobalShortcutManager(HotKeys& hotKeys, MainQueue& mainQueue, Log& log);
    GlobalShortcutManager(const GlobalShortcutManager&) = delete;
    GlobalShortcutManager& operator=(const GlobalShortcutManager&) = delete;
    ~GlobalShortcutManager();

    // Makes presses of hot keys arrive here, unless they do already. Away from the main thread it defers itself to the
    // main queue. After a failure the next call tries again.
    void installEventHandlerIfNeeded();

    // Registers one hot key: a virtual key code and a mask of hotKeyModifiers. A press calls `handler` with `action`,
    // on the main thread. Ids run from 1; a failed registration uses none up.
    void registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, Action action, Handler handler);

    // Gives every hot key back and begins with id 1 again. The handler for presses stays installed.
    void unregisterAll();

private:
    enum class HandlerState { none, installed };

    OsStatus handleEvent(HotKeyEvent& event);
    void dispatch(const HashableHotKeyID& hotKeyID);

    HotKeys& hotKeys;
    MainQueue& mainQueue;
    Log& log;
    std::uint32_t signature;
    std::vector<HotKeyRef> hotKeyRefs;
    HandlerState eventHandler = HandlerState::none;
    std::uint32_t nextHotKeyID = 1;
    std::unordered_map<HashableHotKeyID, Handler> handlers;
    std::unordered_map<HashableHotKeyID, Action> actions;
    WeakGuard weakGuard;
};

} // namespace quorvel
