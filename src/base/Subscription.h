#pragma once

#include <functional>
#include <utility>

namespace quorvel {

// Keeps a registration (an observer, a timer, a monitor) alive; ends it when destroyed or reset.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : end(std::move(end)) {}
    Subscription(const Subscription&) = delete;
    Subscription(Subscription&& other) noexcept : end(std::exchange(other.end, nullptr)) {}
    ~Subscription() { reset(); }

    Subscription& operator=(const Subscription&) = delete;
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            reset();
            end = std::exchange(other.end, nullptr);
        }
        return *this;
    }

    void reset()
    {
        if (auto action = std::exchange(end, nullptr)) {
            action();
        }
    }

    bool isActive() const { return static_cast<bool>(end); }

private:
    std::function<void()> end;
};

} // namespace quorvel
