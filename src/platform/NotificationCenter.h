#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "base/Subscription.h"

namespace quorvel {

// Names an object that notifications are about, such as a window; 0 stands for no object.
using NotificationObject = std::uintptr_t;

inline constexpr NotificationObject noNotificationObject = 0;

namespace notificationNames {
inline constexpr std::string_view shortcutDidChange = "ShortcutDidChangeNotification";       // without object
inline constexpr std::string_view preferencesWillClose = "preferencesWillCloseNotification"; // without object
inline constexpr std::string_view windowWillClose = "NSWindowWillCloseNotification";         // the object is the window
} // namespace notificationNames

// Announcements between parts of the program that do not know each other.
class NotificationCenter {
public:
    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;
    virtual ~NotificationCenter() = default;

    // Tells every observer that is registered at this moment, in the order of registration, each on the main queue.
    virtual void post(std::string_view name, NotificationObject object) = 0;

    // Calls `handler` for each notification of that name, and of that object unless it is noNotificationObject, until
    // the token goes. A delivery that is still under way when the token goes is dropped.
    virtual Subscription observe(std::string_view name, NotificationObject object, std::function<void()> handler) = 0;
};

} // namespace quorvel
