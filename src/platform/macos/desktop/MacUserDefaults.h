#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/UserDefaults.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::macos {

// The defaults domain of the application. What other programs write there is heard of for keys that were asked for.
class MacUserDefaults final : public UserDefaults {
public:
    explicit MacUserDefaults(MainQueue& mainQueue);
    MacUserDefaults(const MacUserDefaults&) = delete;
    MacUserDefaults& operator=(const MacUserDefaults&) = delete;
    ~MacUserDefaults() override;

    std::optional<PropertyValue> object(std::string_view key) const override;
    void setObject(std::string_view key, PropertyValue value) override;
    void removeObject(std::string_view key) override;
    Subscription observeForeignChanges(std::function<void()> changed) override;

    // The same, with the key that was changed.
    Subscription observeForeignKeys(std::function<void(const std::string& key)> changed);

private:
    class Watch;

    std::unique_ptr<Watch> watch;
};

} // namespace quorvel::macos
