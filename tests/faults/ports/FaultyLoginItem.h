#pragma once

#include "platform/LoginItem.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyLoginItem final : public LoginItem {
public:
    FaultyLoginItem(LoginItem& real, PortFaults& faults) : real(real), faults(faults) {}

    LoginItemStatus status() const override
    {
        constexpr auto unknown = static_cast<LoginItemStatus>(99);
        return faults.attempt(
            "LoginItem.status", [&] { return real.status(); }, LoginItemStatus{LoginItemStatus::notFound},
            LoginItemStatus{unknown});
    }

    std::expected<void, std::string> registerItem() override
    {
        return faults.attempt(
            "LoginItem.registerItem", [&] { return real.registerItem(); },
            std::unexpected(std::string("The folder is read-only.")));
    }

    std::expected<void, std::string> unregisterItem() override
    {
        return faults.attempt(
            "LoginItem.unregisterItem", [&] { return real.unregisterItem(); },
            std::unexpected(std::string("The folder is read-only.")));
    }

private:
    LoginItem& real;
    PortFaults& faults;
};

} // namespace quorvel
