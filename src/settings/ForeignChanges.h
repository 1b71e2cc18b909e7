#pragma once

#include <set>
#include <string>

namespace quorvel {

class Log;
class NotificationCenter;
class UserDefaults;

// To be called when another program has changed stored values: reports those that have a wrong type now, and announces
// the change of a shortcut. Everything else is read when it is needed and wants no announcement.
void handleForeignChanges(const std::set<std::string>& keys, const UserDefaults& userDefaults,
                          NotificationCenter& notificationCenter, Log& log);

} // namespace quorvel
