#include "platform/macos/windows/MacAccessibility.h"

#include "platform/macos/CfValues.h"
#include "platform/macos/windows/AxCalls.h"
#include "platform/macos/windows/AxValues.h"
#include "platform/macos/windows/MacAxElement.h"
#include "platform/macos/windows/MacAxObserver.h"

namespace quorvel::macos {

AxElementRef MacAccessibility::applicationElement(ProcessId process)
{
    return std::make_shared<MacAxElement>(CfRef<AXUIElementRef>::adopt(AXUIElementCreateApplication(process)));
}

std::expected<AxValue, AxError> MacAccessibility::copyAttribute(const AxElementRef& element, std::string_view name)
{
    const auto native = MacAxElement::native(element);
    if (native == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    const auto value = readAttribute(native, cfString(name).get());
    return value ? std::expected<AxValue, AxError>(axValue(value->get())) : std::unexpected(value.error());
}

std::expected<void, AxError> MacAccessibility::setAttribute(const AxElementRef& element, std::string_view name,
                                                            const AxValue& value)
{
    const auto native = MacAxElement::native(element);
    const auto nativeValue = cfValue(value);
    if (native == nullptr || !nativeValue) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (name == axNames::position || name == axNames::size) {
        if (const auto answered = enhancedInterfaces.pauseFor(native); !answered) {
            return answered;
        }
    }
    return writeAttribute(native, cfString(name).get(), nativeValue.get());
}

std::expected<void, AxError> MacAccessibility::performAction(const AxElementRef& element, std::string_view name)
{
    const auto native = MacAxElement::native(element);
    if (native == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    AXUIElementSetMessagingTimeout(native, actingTimeout);
    return axResult(AXUIElementPerformAction(native, cfString(name).get()));
}

std::expected<ProcessId, AxError> MacAccessibility::processId(const AxElementRef& element)
{
    const auto native = MacAxElement::native(element);
    if (native == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    pid_t process = 0;
    const auto result = axResult(AXUIElementGetPid(native, &process));
    return result ? std::expected<ProcessId, AxError>(process) : std::unexpected(result.error());
}

std::expected<std::unique_ptr<AxObserver>, AxError>
MacAccessibility::createObserver(ProcessId process, std::function<void(std::string_view name)> callback)
{
    return MacAxObserver::create(process, std::move(callback));
}

} // namespace quorvel::macos
