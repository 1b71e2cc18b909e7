#pragma once

#include <memory>

#include <libsoup/soup.h>

#include "platform/HttpClient.h"

namespace quorvel::x11 {

// Documents by libsoup, on GLib's default main context. It follows the desktop's proxy settings and the server's
// redirections.
class SoupHttpClient final : public HttpClient {
public:
    SoupHttpClient();

    Subscription get(const std::string& address, std::function<void(Answer)> completion) override;

private:
    struct Unref {
        void operator()(SoupSession* session) const { g_object_unref(session); }
    };

    std::unique_ptr<SoupSession, Unref> session;
};

} // namespace quorvel::x11
