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
    using Event = std::span<const std::uint8_t>;

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

    // Called for each event before the program gets it, from another thread; replaces the earlier observer.
    void observeEvents(std::function<void(Event)> newObserver);

    // Forgets what was armed; true when it had acted.
    bool disarm();

private:
    // What one side sends.
    struct Direction {
        std::vector<std::uint8_t> pending; // bytes of a message that is not complete
        bool isSetUp = false;
    };

    // A program's connection and the server's end of it.
    struct Link {
        FileDescriptor program;
        FileDescriptor server;
        Direction requests;
        Direction answers;
    };

    void listen();
    void serve(const std::stop_token& stop);
    void accept();
    bool forwardRequests(Link& link);
    bool forwardAnswers(Link& link);
    void lookAtRequest(Request request);
    void lookAtAnswer(std::span<const std::uint8_t> answer);

    std::string serverAddress;
    std::string displayName;
    FileDescriptor listener;
    FileDescriptor wake;
    std::list<Link> links;
    std::mutex mutex;
    std::function<void(Request)> observer;
    std::function<void(Event)> eventObserver;
    std::function<bool(Request)> filter;
    std::function<void()> act;
    std::size_t left = 0;
    bool hasActed = false;
    std::jthread thread;
};

} // namespace quorvel::xtest
