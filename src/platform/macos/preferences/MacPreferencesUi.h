#pragma once

#include "platform/PreferencesUi.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::macos {

// The preferences and the About window on AppKit. The system itself posts the notification of a closing window.
class MacPreferencesUi final : public PreferencesUi {
public:
    explicit MacPreferencesUi(MainQueue& mainQueue) : mainQueue(mainQueue) {}

    std::unique_ptr<PreferencesWindow> createWindow(PreferencesWindowModel& model) override;
    std::unique_ptr<AboutWindow> createAboutWindow(const AboutContent& content) override;

private:
    MainQueue& mainQueue;
};

} // namespace quorvel::macos
