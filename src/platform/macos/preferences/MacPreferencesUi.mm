#include "platform/macos/preferences/MacPreferencesUi.h"

#include "platform/macos/preferences/MacAboutWindow.h"
#include "platform/macos/preferences/MacPreferencesWindow.h"

namespace quorvel::macos {

std::unique_ptr<PreferencesWindow> MacPreferencesUi::createWindow(PreferencesWindowModel& model)
{
    @autoreleasepool {
        return std::make_unique<MacPreferencesWindow>(model, mainQueue);
    }
}

std::unique_ptr<AboutWindow> MacPreferencesUi::createAboutWindow(const AboutContent& content)
{
    @autoreleasepool {
        return std::make_unique<MacAboutWindow>(content);
    }
}

} // namespace quorvel::macos
