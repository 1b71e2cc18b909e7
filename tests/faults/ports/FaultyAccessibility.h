#pragma once

#include <memory>
#include <utility>

#include "platform/Accessibility.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyAxObserver final : public AxObserver {
public:
    FaultyAxObserver(std::unique_ptr<AxObserver> real, PortFaults& faults) : real(std::move(real)), faults(faults) {}

    std::expected<void, AxError> addNotification(const AxElementRef& element, std::string_view name) override
    {
        return faults.attempt(
            "AxObserver.addNotification", [&] { return real->addNotification(element, name); },
            std::unexpected(axErrors::notificationUnsupported), std::unexpected(axErrors::invalidElement));
    }

    std::expected<void, AxError> removeNotification(const AxElementRef& element, std::string_view name) override
    {
        return faults.attempt(
            "AxObserver.removeNotification", [&] { return real->removeNotification(element, name); },
            std::unexpected(axErrors::invalidElement));
    }

    void startDelivery() override
    {
        faults.attemptEffect("AxObserver.startDelivery", [&] { real->startDelivery(); });
    }

private:
    std::unique_ptr<AxObserver> real;
    PortFaults& faults;
};

class FaultyAccessibility final : public Accessibility {
public:
    FaultyAccessibility(Accessibility& real, PortFaults& faults) : real(real), faults(faults) {}

    AxElementRef applicationElement(ProcessId process) override { return real.applicationElement(process); }

    std::expected<AxValue, AxError> copyAttribute(const AxElementRef& element, std::string_view name) override
    {
        return faults.attempt(
            "Accessibility.copyAttribute " + std::string(name), [&] { return real.copyAttribute(element, name); },
            std::unexpected(axErrors::invalidElement), std::unexpected(axErrors::cannotComplete),
            std::unexpected(axErrors::apiDisabled), std::unexpected(axErrors::noValue), AxValue(),
            AxValue(std::vector<AxElementRef>()));
    }

    std::expected<void, AxError> setAttribute(const AxElementRef& element, std::string_view name,
                                              const AxValue& value) override
    {
        return faults.attempt(
            "Accessibility.setAttribute " + std::string(name), [&] { return real.setAttribute(element, name, value); },
            std::unexpected(axErrors::invalidElement), std::unexpected(axErrors::cannotComplete),
            std::unexpected(axErrors::apiDisabled), std::unexpected(axErrors::failure));
    }

    std::expected<void, AxError> performAction(const AxElementRef& element, std::string_view name) override
    {
        return faults.attempt(
            "Accessibility.performAction", [&] { return real.performAction(element, name); },
            std::unexpected(axErrors::invalidElement), std::unexpected(axErrors::cannotComplete));
    }

    std::expected<ProcessId, AxError> processId(const AxElementRef& element) override
    {
        return faults.attempt(
            "Accessibility.processId", [&] { return real.processId(element); },
            std::unexpected(axErrors::invalidElement));
    }

    std::expected<std::unique_ptr<AxObserver>, AxError>
    createObserver(ProcessId process, std::function<void(std::string_view name)> callback) override
    {
        using Result = std::expected<std::unique_ptr<AxObserver>, AxError>;
        return faults.attempt(
            "Accessibility.createObserver",
            [&]() -> Result {
                auto made = real.createObserver(process, std::move(callback));
                if (made) {
                    return std::make_unique<FaultyAxObserver>(*std::move(made), faults);
                }
                return made;
            },
            std::unexpected(axErrors::failure), std::unexpected(axErrors::cannotComplete));
    }

private:
    Accessibility& real;
    PortFaults& faults;
};

} // namespace quorvel
