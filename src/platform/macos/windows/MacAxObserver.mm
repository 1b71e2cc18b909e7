#include "platform/macos/windows/MacAxObserver.h"

#include "platform/macos/CfValues.h"
#include "platform/macos/windows/AxCalls.h"
#include "platform/macos/windows/MacAxElement.h"

namespace quorvel::macos {

std::expected<std::unique_ptr<AxObserver>, AxError> MacAxObserver::create(ProcessId process, Callback callback)
{
    auto result = std::make_unique<MacAxObserver>(std::move(callback));
    AXObserverRef native = nullptr;
    const auto created = axResult(AXObserverCreate(process, &MacAxObserver::notified, &native));
    result->observer = CfRef<AXObserverRef>::adopt(native);
    if (!created) {
        return std::unexpected(created.error());
    }
    return result;
}

MacAxObserver::~MacAxObserver()
{
    if (observer) {
        CFRunLoopRemoveSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer.get()), kCFRunLoopDefaultMode);
    }
}

std::expected<void, AxError> MacAxObserver::addNotification(const AxElementRef& element, std::string_view name)
{
    const auto native = MacAxElement::native(element);
    if (native == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    AXUIElementSetMessagingTimeout(native, actingTimeout);
    return axResult(AXObserverAddNotification(observer.get(), native, cfString(name).get(), this));
}

std::expected<void, AxError> MacAxObserver::removeNotification(const AxElementRef& element, std::string_view name)
{
    const auto native = MacAxElement::native(element);
    if (native == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    AXUIElementSetMessagingTimeout(native, actingTimeout);
    return axResult(AXObserverRemoveNotification(observer.get(), native, cfString(name).get()));
}

void MacAxObserver::startDelivery()
{
    CFRunLoopAddSource(CFRunLoopGetMain(), AXObserverGetRunLoopSource(observer.get()), kCFRunLoopDefaultMode);
}

void MacAxObserver::notified(AXObserverRef, AXUIElementRef, CFStringRef name, void* context)
{
    const auto callback = static_cast<MacAxObserver*>(context)->callback; // which may destroy the observer
    callback(utf8(name));
}

} // namespace quorvel::macos
