#pragma once

#include "platform/PreferencesUi.h"

namespace quorvel {

class SimulatedPreferencesUi;

class SimulatedAboutWindow final : public AboutWindow {
public:
    SimulatedAboutWindow(SimulatedPreferencesUi& owner, AboutContent content);
    SimulatedAboutWindow(const SimulatedAboutWindow&) = delete;
    SimulatedAboutWindow& operator=(const SimulatedAboutWindow&) = delete;
    ~SimulatedAboutWindow() override;

    void show() override;

    const AboutContent content;
    bool isVisible() const { return visible; }
    // As its user does it.
    void close() { visible = false; }

private:
    SimulatedPreferencesUi& owner;
    bool visible = false;
};

} // namespace quorvel
