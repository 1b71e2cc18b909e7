#include "layouts/GlobalShortcutManager.h"

#include <utility>

#include <fmt/format.h>

#include "layouts/HotKeyArithmetic.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"

namespace quorvel {

GlobalShortcutManager::GlobalShortcutManager(HotKeys& hotKeys, MainQueue& mainQueue, Log& log)
    : hotKeys(hotKeys), mainQueue(mainQueue), log(log), signature(hotKeySignature(u"Quorvel"))
{}

GlobalShortcutManager::~GlobalShortcutManager()
{
    for (const auto ref : hotKeyRefs) {
        hotKeys.unregisterHotKey(ref);
    }
    if (eventHandler == HandlerState::installed) {
        hotKeys.removeHandler();
    }
}

void GlobalShortcutManager::installEventHandlerIfNeeded()
{
    if (eventHandler == HandlerState::installed) {
        return;
    }
    if (!mainQueue.isMainThread()) {
        mainQueue.async(weakGuard.guard([this] { installEventHandlerIfNeeded(); }));
        return;
    }
    const auto status = hotKeys.installHandler([this](HotKeyEvent& event) { return handleEvent(event); });
    if (status != osStatus::success) {
        log.line(fmt::format("Failed to install event handler with status: {}", status));
        return;
    }
    eventHandler = HandlerState::installed;
}

void GlobalShortcutManager::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, Action action,
                                           Handler handler)
{
    installEventHandlerIfNeeded();
    const HotKeyId hotKeyId{signature, nextHotKeyID};
    const auto registration = hotKeys.registerHotKey(keyCode, modifiers, hotKeyId);
    if (registration.status != osStatus::success) {
        log.line(fmt::format("Failed to register hotkey with status: {}", registration.status));
        return;
    }
    if (registration.ref == noHotKeyRef) {
        log.line("Failed to obtain hotKeyRef");
        return;
    }
    hotKeyRefs.push_back(registration.ref);
    handlers.insert_or_assign(HashableHotKeyID{hotKeyId}, std::move(handler));
    actions.insert_or_assign(HashableHotKeyID{hotKeyId}, action);
    nextHotKeyID = checkedSum(nextHotKeyID, 1);
    log.line(fmt::format("Registered hotkey id={} keyCode={} modifiers={}", hotKeyId.id, keyCode, modifiers));
}

void GlobalShortcutManager::unregisterAll()
{
    for (const auto ref : hotKeyRefs) {
        if (const auto status = hotKeys.unregisterHotKey(ref); status != osStatus::success) {
            log.line(fmt::format("UnregisterEventHotKey failed with status: {}", status));
        }
    }
    hotKeyRefs.clear();
    handlers.clear();
    actions.clear();
    nextHotKeyID = 1;
}

OsStatus GlobalShortcutManager::handleEvent(HotKeyEvent& event)
{
    if (const auto hotKeyId = event.hotKeyId()) {
        dispatch({*hotKeyId});
    }
    return event.callNextHandler();
}

void GlobalShortcutManager::dispatch(const HashableHotKeyID& hotKeyID)
{
    const auto handler = handlers.find(hotKeyID);
    const auto action = actions.find(hotKeyID);
    if (handler == handlers.end() || action == actions.end()) {
        return;
    }
    // A handler may unregister every hot key, its own included, so it runs as a copy.
    const auto call = handler->second;
    call(action->second);
}

} // namespace quorvel
