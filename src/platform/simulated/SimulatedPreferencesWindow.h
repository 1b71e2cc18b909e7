#pragma once

#include "platform/PreferencesUi.h"

namespace quorvel {

class SimulatedPreferencesUi;

class SimulatedPreferencesWindow final : public PreferencesWindow {
public:
    explicit SimulatedPreferencesWindow(SimulatedPreferencesUi& owner) : owner(owner) {}
    SimulatedPreferencesWindow(const SimulatedPreferencesWindow&) = delete;
    SimulatedPreferencesWindow& operator=(const SimulatedPreferencesWindow&) = delete;
    ~SimulatedPreferencesWindow() override;

    void show() override;
    NotificationObject notificationObject() const override;

    bool isVisible() const { return visible; }
    // As its user does it.
    void close();

private:
    SimulatedPreferencesUi& owner;
    bool visible = false;
};

} // namespace quorvel
