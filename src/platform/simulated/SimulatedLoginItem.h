#pragma once

#include <optional>
#include <string>

#include "platform/LoginItem.h"

namespace quorvel {

class Journal;

// A session that starts the program at login once it is asked to.
class SimulatedLoginItem final : public LoginItem {
public:
    explicit SimulatedLoginItem(Journal& journal) : journal(journal) {}

    LoginItemStatus status() const override;
    std::expected<void, std::string> registerItem() override;
    std::expected<void, std::string> unregisterItem() override;

    // As the session's own settings do it.
    void setStatus(LoginItemStatus status) { current = status; }

    // What a registration leads to.
    void requireApproval() { registered = LoginItemStatus::requiresApproval; }
    void refuse(std::string reason) { refusal = std::move(reason); }

private:
    std::expected<void, std::string> change(LoginItemStatus status);

    Journal& journal;
    LoginItemStatus current = LoginItemStatus::notRegistered;
    LoginItemStatus registered = LoginItemStatus::enabled;
    std::optional<std::string> refusal;
};

} // namespace quorvel
