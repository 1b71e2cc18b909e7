#pragma once

#include <functional>
#include <map>
#include <string>

#include "base/Signal.h"
#include "platform/UserDefaults.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;

class SimulatedUserDefaults final : public UserDefaults {
public:
    SimulatedUserDefaults(Journal& journal, SimulatedMainQueue& mainQueue) : journal(journal), mainQueue(mainQueue) {}

    std::optional<PropertyValue> object(std::string_view key) const override;
    void setObject(std::string_view key, PropertyValue value) override;
    void removeObject(std::string_view key) override;
    Subscription observeForeignChanges(std::function<void()> changed) override;

    // As another program does it.
    void changeFromOutside(std::string_view key, PropertyValue value);

    const std::map<std::string, PropertyValue, std::less<>>& contents() const { return values; }

private:
    Journal& journal;
    SimulatedMainQueue& mainQueue;
    Signal<> foreignChange;
    std::map<std::string, PropertyValue, std::less<>> values;
};

} // namespace quorvel
