#pragma once

#include "base/WeakGuard.h"
#include "platform/PreferencesUi.h"

namespace quorvel {

class SimulatedPreferencesUi;

class SimulatedPreferencesWindow final : public PreferencesWindow {
public:
    SimulatedPreferencesWindow(SimulatedPreferencesUi& owner, PreferencesWindowModel& model);
    SimulatedPreferencesWindow(const SimulatedPreferencesWindow&) = delete;
    SimulatedPreferencesWindow& operator=(const SimulatedPreferencesWindow&) = delete;
    ~SimulatedPreferencesWindow() override;

    void show() override;
    NotificationObject notificationObject() const override;

    PreferencesWindowModel& model;
    bool isVisible() const { return visible; }
    bool isCentered() const { return centered; }
    Size size() const { return contentSize; }

    // As its user does it.
    void close();
    void resize(const Size& size);
    void move() { centered = false; }
    void activate();

private:
    SimulatedPreferencesUi& owner;
    Size contentSize;
    bool visible = false;
    bool centered = false;
    WeakGuard weakly;
};

} // namespace quorvel
