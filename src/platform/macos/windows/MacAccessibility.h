#pragma once

#include "platform/Accessibility.h"
#include "platform/macos/windows/EnhancedInterfaces.h"

namespace quorvel::macos {

// No call waits long for an application that hangs: a quarter of a second where something is read, which happens for
// many windows in a row, and a second where something is done, which a person waits for.
class MacAccessibility final : public Accessibility {
public:
    explicit MacAccessibility(MainQueue& mainQueue) : enhancedInterfaces(mainQueue) {}

    AxElementRef applicationElement(ProcessId process) override;
    std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                              const AxValue& value) override;
    std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) override;
    std::expected<ProcessId, AxError> processId(const AxElementRef& element) override;
    std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) override;

private:
    EnhancedInterfaces enhancedInterfaces;
};

} // namespace quorvel::macos
