#pragma once

#include "platform/LoginItem.h"

namespace quorvel::macos {

// This application among the login items of System Settings.
class MacLoginItem final : public LoginItem {
public:
    LoginItemStatus status() const override;
    std::expected<void, std::string> registerItem() override;
    std::expected<void, std::string> unregisterItem() override;
};

} // namespace quorvel::macos
