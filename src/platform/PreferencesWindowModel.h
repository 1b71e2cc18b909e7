#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "base/Geometry.h"

namespace quorvel {

class FormModel;
class LayoutsPaneModel;

struct PreferencesTab {
    std::string title; // also the symbol's description
    std::string symbol;
    std::variant<FormModel*, LayoutsPaneModel*> pane; // never null; lives as long as the window's model
};

struct PreferencesWindowContent {
    std::string title;
    std::string iconName; // a bundle image, for the title bar
    Size size;            // of the content at first, points
    Size minimumSize;
    std::vector<PreferencesTab> tabs; // a toolbar with symbols, unified with a transparent title bar
};

// What the preferences window shows, and what it tells of itself. Main thread only.
class PreferencesWindowModel {
public:
    PreferencesWindowModel() = default;
    PreferencesWindowModel(const PreferencesWindowModel&) = delete;
    PreferencesWindowModel& operator=(const PreferencesWindowModel&) = delete;
    virtual ~PreferencesWindowModel() = default;

    // The same for the life of the window.
    virtual PreferencesWindowContent content() = 0;

    // The tab in front; the user chooses another one.
    virtual std::size_t selectedTab() const = 0;
    virtual void selectTab(std::size_t tab) = 0;

    // The window has come to the front with the keyboard, from another program or just shown.
    virtual void windowDidBecomeActive() = 0;

    // The window, which was shown, is about to go, closed by whoever. It may be shown again.
    virtual void windowWillClose() = 0;
};

} // namespace quorvel
