#pragma once

#include <string_view>

namespace quorvel {

class Log;
class UserDefaults;

// Writes a line for every setting that is stored with a type it should not have, as happens to a file edited by hand.
// The value stays as it is; its reader converts it or uses a default.
void reportMistypedSettings(const UserDefaults& userDefaults, Log& log);

// The same for one of them. Keys that are no settings of this program are passed over.
void reportMistypedSetting(std::string_view key, const UserDefaults& userDefaults, Log& log);

} // namespace quorvel
