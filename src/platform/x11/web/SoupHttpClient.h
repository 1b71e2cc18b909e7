#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <libsoup/soup.h>

#include "platform/HttpClient.h"

namespace quorvel::x11 {

// Documents by libsoup, on GLib's default main context. It follows the desktop's proxy settings and the server's
// redirections. A server of HTTPS must prove who it is.
class SoupHttpClient final : public HttpClient {
public:
    // Trusts the certificate authorities in that file, or without a file those of the system.
    explicit SoupHttpClient(const std::filesystem::path& authorities);

    Subscription get(const std::string& address, std::function<void(Answer)> completion) override;

private:
    struct Unref {
        void operator()(SoupSession* session) const { g_object_unref(session); }
    };

    void trustOnly(const std::filesystem::path& authorities);

    std::unique_ptr<SoupSession, Unref> session;
    std::string problem; // why nothing can be asked for
};

} // namespace quorvel::x11
