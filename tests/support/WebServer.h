#pragma once

#include <memory>
#include <optional>
#include <string>
#include <thread>

#include <gio/gio.h>

#include "support/CertificateAuthority.h"

namespace quorvel::xtest {

// Serves one document at every path of an address of this machine, to one client after the other; with an identity over
// TLS.
class WebServer {
public:
    explicit WebServer(std::string document, const std::optional<ServerIdentity>& identity = {});
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;
    ~WebServer();

    std::string address() const;

private:
    struct Unref {
        void operator()(gpointer object) const { g_object_unref(object); }
    };

    template <class Object>
    using Owned = std::unique_ptr<Object, Unref>;

    void listen();
    void serve() const;
    void answer(GIOStream& stream) const;

    std::string document;
    Owned<GTlsCertificate> certificate; // none: without TLS
    Owned<GSocketListener> listener{g_socket_listener_new()};
    Owned<GCancellable> end{g_cancellable_new()};
    std::string port;
    std::thread thread;
};

} // namespace quorvel::xtest
