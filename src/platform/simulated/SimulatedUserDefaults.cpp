#include "platform/simulated/SimulatedUserDefaults.h"

#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/JournalText.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel {

std::optional<PropertyValue> SimulatedUserDefaults::object(std::string_view key) const
{
    journal.record("UserDefaults.object({})", key);
    const auto entry = values.find(key);
    return entry == values.end() ? std::nullopt : std::optional(entry->second);
}

void SimulatedUserDefaults::setObject(std::string_view key, PropertyValue value)
{
    journal.record("UserDefaults.setObject({}, {})", key, journalText(value));
    values.insert_or_assign(std::string(key), std::move(value));
}

void SimulatedUserDefaults::removeObject(std::string_view key)
{
    journal.record("UserDefaults.removeObject({})", key);
    const auto entry = values.find(key);
    if (entry != values.end()) {
        values.erase(entry);
    }
}

Subscription SimulatedUserDefaults::observeForeignChanges(std::function<void()> changed)
{
    return foreignChange.observe(std::move(changed));
}

void SimulatedUserDefaults::changeFromOutside(std::string_view key, PropertyValue value)
{
    values.insert_or_assign(std::string(key), std::move(value));
    mainQueue.async([this] { foreignChange.emit(); });
}

} // namespace quorvel
