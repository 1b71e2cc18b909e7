#include <Carbon/Carbon.h>

#include "macos/fakes/FakeDesktop.h"

using namespace quorvel;

struct FakeEvent {
    HotKeyEvent& press;
};

namespace {

SimulatedHotKeys& hotKeys()
{
    return fakes::FakeDesktop::current().desktop.hotKeys;
}

} // namespace

extern "C" {

EventTargetRef GetApplicationEventTarget()
{
    return reinterpret_cast<EventTargetRef>(1);
}

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount count,
                             const EventTypeSpec* types, void* context, EventHandlerRef* installed)
{
    const bool isForPresses = count == 1 && types[0].eventClass == kEventClassKeyboard &&
                              types[0].eventKind == kEventHotKeyPressed && target == GetApplicationEventTarget();
    if (!isForPresses || hotKeys().hasHandler()) {
        fakes::complain("The handler of hot keys is not the only one for presses on the application");
    }
    const auto status = hotKeys().installHandler([handler, context](HotKeyEvent& press) {
        FakeEvent event{press};
        return handler(reinterpret_cast<EventHandlerCallRef>(&event), &event, context);
    });
    *installed = status == noErr ? reinterpret_cast<EventHandlerRef>(1) : nullptr;
    return status;
}

OSStatus RemoveEventHandler(EventHandlerRef)
{
    hotKeys().removeHandler();
    return noErr;
}

OSStatus CallNextEventHandler(EventHandlerCallRef, EventRef event)
{
    return event->press.callNextHandler();
}

OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType type, EventParamType*, ByteCount room,
                           ByteCount*, void* value)
{
    if (name != kEventParamDirectObject || type != typeEventHotKeyID || room != sizeof(EventHotKeyID)) {
        return eventParameterNotFoundErr;
    }
    const auto id = event->press.hotKeyId();
    if (!id) {
        return id.error();
    }
    *static_cast<EventHotKeyID*>(value) = {id->signature, id->id};
    return noErr;
}

OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef, OptionBits,
                             EventHotKeyRef* hotKey)
{
    const auto registration = hotKeys().registerHotKey(keyCode, modifiers, {id.signature, id.id});
    *hotKey = reinterpret_cast<EventHotKeyRef>(registration.ref);
    return registration.status;
}

OSStatus UnregisterEventHotKey(EventHotKeyRef hotKey)
{
    return hotKeys().unregisterHotKey(reinterpret_cast<HotKeyRef>(hotKey));
}

Boolean IsSecureEventInputEnabled()
{
    return fakes::FakeDesktop::current().isSecureInputEnabled;
}
}
