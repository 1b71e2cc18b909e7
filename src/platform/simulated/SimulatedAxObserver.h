#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "platform/Accessibility.h"

namespace quorvel {

class SimulatedAccessibility;

class SimulatedAxObserver final : public AxObserver {
public:
    // What the accessibility service keeps of an observer.
    struct Registration {
        ProcessId process = 0;
        std::function<void(std::string_view)> callback;
        std::set<std::pair<std::uint64_t, std::string>> notifications; // by the number of the window
        bool isDelivering = false;
    };

    SimulatedAxObserver(SimulatedAccessibility& accessibility, std::shared_ptr<Registration> registration);
    ~SimulatedAxObserver() override;

    std::expected<void, AxError> addNotification(const AxElementRef& element, std::string_view name) override;
    std::expected<void, AxError> removeNotification(const AxElementRef& element, std::string_view name) override;
    void startDelivery() override;

private:
    SimulatedAccessibility& accessibility;
    std::shared_ptr<Registration> registration;
};

} // namespace quorvel
