#pragma once

#include <memory>

#include "platform/AboutContent.h"
#include "platform/PreferencesUi.h"

namespace quorvel {

struct Platform;
class Bundle;

// What the About window shows: the program's logo, name and version.
AboutContent aboutView(const Bundle& bundle);

// Owns the About window, one and the same from the first request to the end of the process.
class AboutWindowController {
public:
    // `platform` outlives the controller.
    explicit AboutWindowController(const Platform& platform) : platform(platform) {}

    // Creates the window on the first request and shows it; nothing happens where it cannot be made.
    void showWindow();

private:
    const Platform& platform;
    std::unique_ptr<AboutWindow> window;
};

} // namespace quorvel
