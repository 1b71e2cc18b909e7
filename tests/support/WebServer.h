#pragma once

#include <cstdint>
#include <string>
#include <thread>

#include "support/FileDescriptor.h"

namespace quorvel::xtest {

// Serves one document at every path of an address of this machine, to one client after the other.
class WebServer {
public:
    explicit WebServer(std::string document);
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;
    ~WebServer();

    std::string address() const;

private:
    void serve() const;
    void answer(const FileDescriptor& connection) const;

    std::string document;
    FileDescriptor listener;
    std::uint16_t port = 0;
    std::thread thread;
};

} // namespace quorvel::xtest
