#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/simulated/SimulatedAxObserver.h"

namespace quorvel {

class Journal;
class SimulatedElement;
class SimulatedMainQueue;
class SimulatedPermissions;
class SimulatedWindow;
class SimulatedWindowServer;

class SimulatedAccessibility final : public Accessibility {
public:
    SimulatedAccessibility(Journal& journal, SimulatedMainQueue& mainQueue, SimulatedPermissions& permissions,
                           SimulatedWindowServer& windowServer);
    ~SimulatedAccessibility() override;

    AxElementRef applicationElement(ProcessId process) override;
    std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                              const AxValue& value) override;
    std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) override;
    std::expected<ProcessId, AxError> processId(const AxElementRef& element) override;
    std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) override;

    AxElementRef elementOf(const SimulatedWindow& window) const;

    // Those that exist.
    std::size_t observerCount() const
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(observers, [](const auto& each) { return !each.expired(); }));
    }

    void failObserverCreation(AxError error) { observerError = error; }
    // Refuses every call as if the permission were missing, though it is given.
    void refuseCalls() { callsRefused = true; }
    void behave()
    {
        observerError.reset();
        callsRefused = false;
    }

    // Tells the observers of the window, later.
    void notify(const SimulatedWindow& window, std::string_view notification);
    // Tells every delivering observer of the process, later, whatever it was told to watch.
    void notifyUnasked(ProcessId process, std::string_view notification);

private:
    friend class SimulatedAxObserver;
    using Registration = SimulatedAxObserver::Registration;

    // The thing that a usable element names; both pointers are null for none.
    struct Target {
        SimulatedElement* element = nullptr;
        SimulatedWindow* window = nullptr; // null for an application
    };

    bool mayBeCalled() const;
    std::expected<Target, AxError> resolve(const AxElementRef& element) const;
    std::expected<AxValue, AxError> read(const Target& target, std::string_view name) const;
    std::expected<AxValue, AxError> readApplication(ProcessId process, std::string_view name) const;
    std::expected<void, AxError> writeApplication(ProcessId process, std::string_view name, const AxValue& value);
    std::expected<void, AxError> write(SimulatedWindow& window, std::string_view name, const AxValue& value);

    std::expected<void, AxError> addNotification(Registration& registration, const AxElementRef& element,
                                                 std::string_view name);
    std::expected<void, AxError> removeNotification(Registration& registration, const AxElementRef& element,
                                                    std::string_view name);
    void startDelivery(Registration& registration);

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    SimulatedPermissions& permissions;
    SimulatedWindowServer& windowServer;
    std::vector<std::weak_ptr<Registration>> observers;
    std::optional<AxError> observerError;
    bool callsRefused = false;
};

} // namespace quorvel
