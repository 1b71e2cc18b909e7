#include "support/WebServer.h"

#include <utility>

#include <netinet/in.h>
#include <sys/socket.h>

#include "support/Patience.h"

namespace quorvel::xtest {

WebServer::WebServer(std::string document)
    : document(std::move(document)), listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    constexpr int oneAfterTheOther = 8;
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof name;
    auto* const generic = reinterpret_cast<sockaddr*>(&name);
    if (::bind(listener.get(), generic, size) != 0 || ::listen(listener.get(), oneAfterTheOther) != 0 ||
        ::getsockname(listener.get(), generic, &size) != 0) {
        throw HarnessError("no web server can be started");
    }
    port = ntohs(name.sin_port);
    thread = std::thread([this] { serve(); });
}

WebServer::~WebServer()
{
    ::shutdown(listener.get(), SHUT_RDWR); // ends the accept()
    thread.join();
}

std::string WebServer::address() const
{
    return "http://127.0.0.1:" + std::to_string(port) + "/";
}

void WebServer::serve() const
{
    for (;;) {
        const FileDescriptor connection(::accept4(listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
        if (connection.get() < 0) {
            return;
        }
        answer(connection);
    }
}

void WebServer::answer(const FileDescriptor& connection) const
{
    std::string request;
    char block[4096];
    while (!request.contains("\r\n\r\n")) {
        const ssize_t count = ::recv(connection.get(), block, sizeof block, 0);
        if (count <= 0) {
            return;
        }
        request.append(block, static_cast<std::size_t>(count));
    }
    std::string_view rest;
    const std::string response =
        "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + std::to_string(document.size()) + "\r\n\r\n" +
        document;
    for (rest = response; !rest.empty();) {
        const ssize_t count = ::send(connection.get(), rest.data(), rest.size(), MSG_NOSIGNAL);
        if (count <= 0) {
            return;
        }
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace quorvel::xtest
