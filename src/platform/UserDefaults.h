#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/Subscription.h"
#include "platform/PropertyValue.h"

namespace quorvel {

// The application's settings: one flat table of typed values that outlives the process.
class UserDefaults {
public:
    UserDefaults() = default;
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    virtual ~UserDefaults() = default;

    // The value as it was stored, or nothing for a key that was never written or was removed. Never a default.
    virtual std::optional<PropertyValue> object(std::string_view key) const = 0;

    // Stores the value. What object() answers changes at once.
    //
    // X11: the file is replaced before the call returns; a failure is reported in one line on standard error, and the
    // value then holds for this run only.
    virtual void setObject(std::string_view key, PropertyValue value) = 0;

    virtual void removeObject(std::string_view key) = 0;

    // Calls `changed` from the main loop after somebody other than this program has changed a value, until the token
    // goes.
    virtual Subscription observeForeignChanges(std::function<void()> changed) = 0;
};

} // namespace quorvel
