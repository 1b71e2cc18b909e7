#pragma once

#include <expected>
#include <string>

namespace quorvel {

// The platform's numbers. A number that is none of these means that the program does not start at login.
enum class LoginItemStatus : int { notRegistered = 0, enabled = 1, requiresApproval = 2, notFound = 3 };

// Whether the session starts this program when a person logs in.
class LoginItem {
public:
    LoginItem() = default;
    LoginItem(const LoginItem&) = delete;
    LoginItem& operator=(const LoginItem&) = delete;
    virtual ~LoginItem() = default;

    // As the session has it at this moment, whoever changed it.
    virtual LoginItemStatus status() const = 0;

    // Asks the session to start this program at login, or no longer to; the error is a sentence for a person. A
    // registration may succeed and yet need a person's approval; status() tells.
    virtual std::expected<void, std::string> registerItem() = 0;
    virtual std::expected<void, std::string> unregisterItem() = 0;
};

} // namespace quorvel
