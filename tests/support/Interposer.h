#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "support/FileDescriptor.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// Stands between a program and the X server, request by request, so that a test can do something between any two of
// them. A program that is to be watched connects to display() instead of the server's own.
class Interposer {
public:
    using Request = std::span<const std::uint8_t>;

    explicit Interposer(const XServer& server);
    Interposer(const Interposer&) = delete;
    ~Interposer();

    Interposer& operator=(const Interposer&) = delete;

    const std::string& display() const { return displayName; }

    // Calls `act` once, just before the server gets the request that is the count-th from now, from 0, that the filter
    // takes. Both are called from another thread.
    void arm(std::size_t count, std::function<bool(Request)> filter, std::function<void()> act);

    // Called for each request, from another thread; replaces the earlier observer.
    void observe(std::function<void(Request)> newObserver);

    // Forgets what was armed; true when it had acted.
    bool disarm();

private:
    // A program's connection and the server's end of it.
    struct Link {
        FileDescriptor program;
        FileDescriptor server;
        std::vector<std::uint8_t> pending; // bytes of requests that are not complete
        bool isSetUp = false;
    };

    void listen();
    void serve(const std::stop_token& stop);
    void accept();
    bool forwardRequests(Link& link);
    bool forwardReplies(const Link& link) const;
    void look(Request request);

    std::string serverAddress;
    std::string displayName;
    FileDescriptor listener;
    FileDescriptor wake;
    std::list<Link> links;
    std::mutex mutex;
    std::function<void(Request)> observer;
    std::function<bool(Request)> filter;
    std::function<void()> act;
    std::size_t left = 0;
    bool hasActed = false;
    std::jthread thread;
};

} // namespace quorvel::xtest
