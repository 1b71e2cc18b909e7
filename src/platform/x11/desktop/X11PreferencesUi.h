#pragma once

#include "platform/PreferencesUi.h"

namespace quorvel {
class NotificationCenter;
}

namespace quorvel::x11 {

class ToolkitUi;

// Windows of the toolkit.
class X11PreferencesUi final : public PreferencesUi {
public:
    X11PreferencesUi(ToolkitUi& toolkit, NotificationCenter& notificationCenter)
        : toolkit(toolkit), notificationCenter(notificationCenter)
    {}

    std::unique_ptr<PreferencesWindow> createWindow(PreferencesWindowModel& model) override;
    std::unique_ptr<AboutWindow> createAboutWindow(const AboutContent& content) override;

private:
    ToolkitUi& toolkit;
    NotificationCenter& notificationCenter;
};

} // namespace quorvel::x11
