#pragma once

#include <memory>
#include <vector>

#import <AppKit/AppKit.h>

#include "platform/PreferencesUi.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/LaterCall.h"
#include "platform/macos/preferences/Pane.h"
#include "platform/macos/preferences/PreferencesTabs.h"
#include "platform/macos/preferences/ShellWindow.h"
#include "platform/macos/preferences/WindowEvents.h"

namespace quorvel::macos {

// The window with the panes, one for each tab of its toolbar.
class MacPreferencesWindow final : public PreferencesWindow {
public:
    MacPreferencesWindow(PreferencesWindowModel& model, MainQueue& mainQueue);
    ~MacPreferencesWindow() override;

    void show() override;
    NotificationObject notificationObject() const override;

private:
    void addTabs(const PreferencesWindowContent& content, MainQueue& mainQueue);
    void dress(const PreferencesWindowContent& content) const;
    void willClose();

    PreferencesWindowModel& model;
    std::vector<std::unique_ptr<Pane>> panes;
    Retained<QuorvelPreferencesTabs*> tabs;
    Retained<QuorvelShellWindow*> window;
    Retained<QuorvelWindowEvents*> events;
    LaterCall tellingOfActivity;
};

} // namespace quorvel::macos
