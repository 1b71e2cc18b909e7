#pragma once

#include <utility>

#include "platform/UserDefaults.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyUserDefaults final : public UserDefaults {
public:
    FaultyUserDefaults(UserDefaults& real, PortFaults& faults) : real(real), faults(faults) {}

    // Fails by an absent value, and by one of a type that no setting has.
    std::optional<PropertyValue> object(std::string_view key) const override
    {
        return faults.attempt(
            "UserDefaults.object " + std::string(key), [&] { return real.object(key); }, std::nullopt,
            PropertyValue{PropertyData{}});
    }

    void setObject(std::string_view key, PropertyValue value) override
    {
        faults.attemptEffect("UserDefaults.setObject " + std::string(key),
                             [&] { real.setObject(key, std::move(value)); });
    }

    void removeObject(std::string_view key) override
    {
        faults.attemptEffect("UserDefaults.removeObject " + std::string(key), [&] { real.removeObject(key); });
    }

    Subscription observeForeignChanges(std::function<void()> changed) override
    {
        return faults.attempt(
            "UserDefaults.observeForeignChanges", [&] { return real.observeForeignChanges(std::move(changed)); },
            Subscription());
    }

private:
    UserDefaults& real;
    PortFaults& faults;
};

} // namespace quorvel
