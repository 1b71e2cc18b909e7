#pragma once

#include "base/WeakGuard.h"
#include "platform/Accessibility.h"

namespace quorvel {

class Alerts;
class Log;
class MainQueue;
class Permissions;
class Workspace;

// A platform's accessibility with an eye on a contradiction: a system that calls the permission given, and refuses
// calls as if it were not. Some do so once the program has been replaced by another version. A person would look in
// vain for what is wrong, so the first time in a run this is said, with the repair.
class VigilantAccessibility final : public Accessibility {
public:
    // What the report goes by and through; all of it outlives this object.
    struct Services {
        Accessibility& accessibility;
        Permissions& permissions;
        MainQueue& mainQueue;
        Workspace& workspace;
        Alerts& alerts;
        Log& log;
    };

    explicit VigilantAccessibility(const Services& services) : services(services) {}

    AxElementRef applicationElement(ProcessId process) override;
    std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                              const AxValue& value) override;
    std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) override;
    std::expected<ProcessId, AxError> processId(const AxElementRef& element) override;
    std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) override;

private:
    // The result, after a look at it.
    template <class T>
    std::expected<T, AxError> seen(std::expected<T, AxError> result);

    void report();

    Services services;
    bool hasReported = false;
    WeakGuard weakly;
};

} // namespace quorvel
