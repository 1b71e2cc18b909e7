#pragma once

#include <memory>
#include <utility>

#include "platform/PreferencesUi.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyPreferencesWindow final : public PreferencesWindow {
public:
    FaultyPreferencesWindow(std::unique_ptr<PreferencesWindow> real, PortFaults& faults)
        : real(std::move(real)), faults(faults)
    {}

    void show() override
    {
        faults.attemptEffect("PreferencesWindow.show", [&] { real->show(); });
    }

    NotificationObject notificationObject() const override { return real->notificationObject(); }

private:
    std::unique_ptr<PreferencesWindow> real;
    PortFaults& faults;
};

class FaultyAboutWindow final : public AboutWindow {
public:
    FaultyAboutWindow(std::unique_ptr<AboutWindow> real, PortFaults& faults) : real(std::move(real)), faults(faults) {}

    void show() override
    {
        faults.attemptEffect("AboutWindow.show", [&] { real->show(); });
    }

private:
    std::unique_ptr<AboutWindow> real;
    PortFaults& faults;
};

class FaultyPreferencesUi final : public PreferencesUi {
public:
    FaultyPreferencesUi(PreferencesUi& real, PortFaults& faults) : real(real), faults(faults) {}

    std::unique_ptr<PreferencesWindow> createWindow(PreferencesWindowModel& model) override
    {
        using Result = std::unique_ptr<PreferencesWindow>;
        return faults.attempt(
            "PreferencesUi.createWindow",
            [&]() -> Result {
                auto made = real.createWindow(model);
                return made ? std::make_unique<FaultyPreferencesWindow>(std::move(made), faults) : nullptr;
            },
            nullptr);
    }

    std::unique_ptr<AboutWindow> createAboutWindow(const AboutContent& content) override
    {
        using Result = std::unique_ptr<AboutWindow>;
        return faults.attempt(
            "PreferencesUi.createAboutWindow",
            [&]() -> Result {
                auto made = real.createAboutWindow(content);
                return made ? std::make_unique<FaultyAboutWindow>(std::move(made), faults) : nullptr;
            },
            nullptr);
    }

private:
    PreferencesUi& real;
    PortFaults& faults;
};

} // namespace quorvel
