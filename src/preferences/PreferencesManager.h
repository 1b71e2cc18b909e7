#pragma once

#include <memory>
#include <optional>

#include "platform/PreferencesUi.h"

namespace quorvel {

// Owns the preferences window, one and the same from the first request to the end of the process.
class PreferencesManager {
public:
    // `preferencesUi` is null where this build has no preferences window.
    explicit PreferencesManager(PreferencesUi* preferencesUi);

    // Creates the window on the first request and shows it; nothing happens where it cannot be made.
    void show();

    // The object of notifications about the window, if there is one.
    std::optional<NotificationObject> windowObject() const;

private:
    PreferencesUi* preferencesUi;
    std::unique_ptr<PreferencesWindow> window;
};

} // namespace quorvel
