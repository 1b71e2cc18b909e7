#pragma once

#include <cstdlib>
#include <memory>
#include <utility>

#include <xcb/xcb.h>

namespace quorvel::x11 {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

// What libxcb hands out to be freed by its receiver: replies, errors and events.
template <class T>
using Reply = std::unique_ptr<T, FreeDeleter>;

template <class Function>
struct ReplyFunction;

template <class ReplyType, class CookieType>
struct ReplyFunction<ReplyType* (*)(xcb_connection_t*, CookieType, xcb_generic_error_t**)> {
    using Value = ReplyType;
    using Cookie = CookieType;
};

// A request on its way. Several of them in flight cost one round trip together:
//
//   PendingReply<xcb_get_geometry_reply> a(c, xcb_get_geometry(c, first));
//   PendingReply<xcb_get_geometry_reply> b(c, xcb_get_geometry(c, second));
//   if (auto geometry = a.take()) ...
//
// A reply that nobody takes is discarded.
template <auto function>
class PendingReply {
public:
    using Value = typename ReplyFunction<decltype(function)>::Value;
    using Cookie = typename ReplyFunction<decltype(function)>::Cookie;

    PendingReply() = default;
    PendingReply(xcb_connection_t* connection, Cookie cookie) : connection(connection), cookie(cookie) {}
    PendingReply(const PendingReply&) = delete;
    PendingReply(PendingReply&& other) noexcept
        : connection(std::exchange(other.connection, nullptr)), cookie(other.cookie)
    {}
    ~PendingReply() { discard(); }

    PendingReply& operator=(const PendingReply&) = delete;
    PendingReply& operator=(PendingReply&& other) noexcept
    {
        if (this != &other) {
            discard();
            connection = std::exchange(other.connection, nullptr);
            cookie = other.cookie;
        }
        return *this;
    }

    // Waits for the reply; null if the request failed (the window is gone, say) or was taken already.
    Reply<Value> take()
    {
        auto* const source = std::exchange(connection, nullptr);
        return Reply<Value>(source != nullptr ? function(source, cookie, nullptr) : nullptr);
    }

    bool isPending() const { return connection != nullptr; }

private:
    void discard()
    {
        if (connection != nullptr) {
            xcb_discard_reply(connection, cookie.sequence);
        }
    }

    xcb_connection_t* connection = nullptr;
    Cookie cookie{};
};

} // namespace quorvel::x11
