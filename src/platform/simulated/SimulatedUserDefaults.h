#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/UserDefaults.h"

namespace quorvel {

class Journal;

class SimulatedUserDefaults final : public UserDefaults {
public:
    explicit SimulatedUserDefaults(Journal& journal) : journal(journal) {}

    std::optional<PropertyValue> object(std::string_view key) const override;
    void setObject(std::string_view key, PropertyValue value) override;
    void removeObject(std::string_view key) override;

    const std::map<std::string, PropertyValue, std::less<>>& contents() const { return values; }

private:
    Journal& journal;
    std::map<std::string, PropertyValue, std::less<>> values;
};

} // namespace quorvel
