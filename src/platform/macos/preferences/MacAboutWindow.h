#pragma once

#import <AppKit/AppKit.h>

#include "platform/PreferencesUi.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/PaneBox.h"
#include "platform/macos/preferences/ShellWindow.h"

namespace quorvel::macos {

// The picture, the name and the version, one under the other.
class MacAboutWindow final : public AboutWindow {
public:
    explicit MacAboutWindow(const AboutContent& content);
    ~MacAboutWindow() override;

    void show() override;

private:
    void fill(const AboutContent& content) const;

    PaneBox box;
    Retained<QuorvelShellWindow*> window;
};

} // namespace quorvel::macos
