#include "platform/macos/keys/MacHotKeys.h"

#include <utility>

namespace quorvel::macos {

namespace {

class MacHotKeyEvent final : public HotKeyEvent {
public:
    MacHotKeyEvent(EventHandlerCallRef call, EventRef event) : call(call), event(event) {}

    std::expected<HotKeyId, OsStatus> hotKeyId() const override
    {
        EventHotKeyID id{};
        const auto status =
            GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof id, nullptr, &id);
        if (status != noErr) {
            return std::unexpected(status);
        }
        return HotKeyId{id.signature, id.id};
    }

    OsStatus callNextHandler() override { return CallNextEventHandler(call, event); }

private:
    EventHandlerCallRef call;
    EventRef event;
};

} // namespace

MacHotKeys::~MacHotKeys()
{
    for (const auto& [ref, hotKey] : hotKeys) {
        UnregisterEventHotKey(hotKey);
    }
    removeHandler();
}

OsStatus MacHotKeys::installHandler(HotKeyHandler newHandler)
{
    removeHandler();
    handler = std::move(newHandler);
    const EventTypeSpec presses{kEventClassKeyboard, kEventHotKeyPressed};
    const auto status =
        InstallEventHandler(GetApplicationEventTarget(), &MacHotKeys::pressed, 1, &presses, this, &installed);
    if (status != noErr) {
        handler = nullptr;
    }
    return status;
}

void MacHotKeys::removeHandler()
{
    if (const auto current = std::exchange(installed, nullptr)) {
        RemoveEventHandler(current);
    }
    handler = nullptr;
}

HotKeyRegistration MacHotKeys::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id)
{
    EventHotKeyRef hotKey = nullptr;
    const auto status = RegisterEventHotKey(keyCode, modifiers, EventHotKeyID{id.signature, id.id},
                                            GetApplicationEventTarget(), 0, &hotKey);
    if (status != noErr || hotKey == nullptr) {
        return {status, noHotKeyRef};
    }
    hotKeys.emplace(nextRef, hotKey);
    return {status, nextRef++};
}

OsStatus MacHotKeys::unregisterHotKey(HotKeyRef ref)
{
    const auto entry = hotKeys.extract(ref);
    return entry ? UnregisterEventHotKey(entry.mapped()) : osStatus::hotKeyInvalid;
}

OSStatus MacHotKeys::pressed(EventHandlerCallRef call, EventRef event, void* context)
{
    MacHotKeyEvent hotKeyEvent(call, event);
    const auto handler = static_cast<MacHotKeys*>(context)->handler; // it may replace itself
    return handler ? handler(hotKeyEvent) : hotKeyEvent.callNextHandler();
}

} // namespace quorvel::macos
