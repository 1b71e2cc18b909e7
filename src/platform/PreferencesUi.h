#pragma once

#include <memory>

#include "platform/AboutContent.h"
#include "platform/NotificationCenter.h"
#include "platform/PreferencesWindowModel.h"

namespace quorvel {

// The preferences window. Destroying it closes it.
class PreferencesWindow {
public:
    PreferencesWindow() = default;
    PreferencesWindow(const PreferencesWindow&) = delete;
    PreferencesWindow& operator=(const PreferencesWindow&) = delete;
    virtual ~PreferencesWindow() = default;

    // Shows the window, centred, in front, with the keyboard, and makes this program the active one. A window that is
    // shown already comes to the middle and to the front.
    virtual void show() = 0;

    // The object of notifications about this window.
    virtual NotificationObject notificationObject() const = 0;
};

class AboutWindow {
public:
    AboutWindow() = default;
    AboutWindow(const AboutWindow&) = delete;
    AboutWindow& operator=(const AboutWindow&) = delete;
    virtual ~AboutWindow() = default;

    // As PreferencesWindow::show().
    virtual void show() = 0;
};

// The program's own windows, as a shell shows them from value trees.
class PreferencesUi {
public:
    PreferencesUi() = default;
    PreferencesUi(const PreferencesUi&) = delete;
    PreferencesUi& operator=(const PreferencesUi&) = delete;
    virtual ~PreferencesUi() = default;

    // A window that is not shown yet, or null where it cannot be made. `model` outlives it. When the window is about to
    // close, notificationNames::windowWillClose is posted and then the model is told. What the user does reaches the
    // model from the main loop, never from inside a call of this port.
    virtual std::unique_ptr<PreferencesWindow> createWindow(PreferencesWindowModel& model) = 0;

    // A window that is not shown yet, or null where it cannot be made.
    virtual std::unique_ptr<AboutWindow> createAboutWindow(const AboutContent& content) = 0;
};

} // namespace quorvel
