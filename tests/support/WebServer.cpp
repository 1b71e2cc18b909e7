#include "support/WebServer.h"

#include <array>
#include <utility>

#include "support/Patience.h"

namespace quorvel::xtest {

WebServer::WebServer(std::string document, const std::optional<ServerIdentity>& identity)
    : document(std::move(document))
{
    if (identity) {
        certificate.reset(
            g_tls_certificate_new_from_files(identity->certificate.c_str(), identity->key.c_str(), nullptr));
        if (!certificate) {
            throw HarnessError("a web server's certificate cannot be read");
        }
    }
    listen();
    thread = std::thread([this] { serve(); });
}

WebServer::~WebServer()
{
    g_cancellable_cancel(end.get());
    thread.join();
}

std::string WebServer::address() const
{
    return (certificate ? "https://127.0.0.1:" : "http://127.0.0.1:") + port + "/";
}

void WebServer::listen()
{
    const Owned<GSocketAddress> any(g_inet_socket_address_new_from_string("127.0.0.1", 0));
    GSocketAddress* effective = nullptr;
    if (g_socket_listener_add_address(listener.get(), any.get(), G_SOCKET_TYPE_STREAM, G_SOCKET_PROTOCOL_TCP, nullptr,
                                      &effective, nullptr) == FALSE) {
        throw HarnessError("no web server can be started");
    }
    const Owned<GSocketAddress> place(effective);
    port = std::to_string(g_inet_socket_address_get_port(G_INET_SOCKET_ADDRESS(place.get())));
}

void WebServer::serve() const
{
    for (;;) {
        const Owned<GSocketConnection> connection(
            g_socket_listener_accept(listener.get(), nullptr, end.get(), nullptr));
        if (!connection) {
            return;
        }
        if (!certificate) {
            answer(*G_IO_STREAM(connection.get()));
        } else if (const Owned<GIOStream> secured(
                       g_tls_server_connection_new(G_IO_STREAM(connection.get()), certificate.get(), nullptr));
                   secured) {
            answer(*secured);
        }
    }
}

// Clients that do not trust the server leave without a request.
void WebServer::answer(GIOStream& stream) const
{
    std::string request;
    std::array<char, 4096> block{};
    while (!request.contains("\r\n\r\n")) {
        const gssize count =
            g_input_stream_read(g_io_stream_get_input_stream(&stream), block.data(), block.size(), end.get(), nullptr);
        if (count <= 0) {
            return;
        }
        request.append(block.data(), static_cast<std::size_t>(count));
    }
    const std::string response =
        "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + std::to_string(document.size()) + "\r\n\r\n" +
        document;
    g_output_stream_write_all(g_io_stream_get_output_stream(&stream), response.data(), response.size(), nullptr,
                              end.get(), nullptr);
    g_io_stream_close(&stream, end.get(), nullptr);
}

} // namespace quorvel::xtest
