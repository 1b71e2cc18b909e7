#pragma once

#include <memory>

#include "platform/NotificationCenter.h"

namespace quorvel {

// The preferences window. Destroying it closes it.
class PreferencesWindow {
public:
    PreferencesWindow() = default;
    PreferencesWindow(const PreferencesWindow&) = delete;
    PreferencesWindow& operator=(const PreferencesWindow&) = delete;
    virtual ~PreferencesWindow() = default;

    // Shows the window, centred, in front, with the keyboard, and makes this program the active one.
    virtual void show() = 0;

    // The object of notifications about this window.
    virtual NotificationObject notificationObject() const = 0;
};

class PreferencesUi {
public:
    PreferencesUi() = default;
    PreferencesUi(const PreferencesUi&) = delete;
    PreferencesUi& operator=(const PreferencesUi&) = delete;
    virtual ~PreferencesUi() = default;

    // A window that is not shown yet, or null where it cannot be made. When the user closes it,
    // notificationNames::windowWillClose and then notificationNames::preferencesWillClose are posted.
    virtual std::unique_ptr<PreferencesWindow> createWindow() = 0;
};

} // namespace quorvel
