#include "support/Interposer.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

#include <fmt/format.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

constexpr int firstDisplay = 2000;
constexpr int lastDisplay = 9000;

struct Address {
    sockaddr_un name{};
    socklen_t length = 0;
};

// A socket's name that no file stands for.
Address abstractAddress(const std::string& path)
{
    Address address;
    address.name.sun_family = AF_UNIX;
    path.copy(address.name.sun_path + 1, sizeof address.name.sun_path - 1);
    address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + path.size());
    return address;
}

std::string socketOf(const std::string& display)
{
    return "/tmp/.X11-unix/X" + display.substr(1);
}

bool sendAll(int descriptor, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const auto sent = ::send(descriptor, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(sent));
    }
    return true;
}

template <class Number>
Number numberAt(std::span<const std::uint8_t> bytes, std::size_t offset)
{
    Number number{};
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

std::size_t padded(std::size_t size)
{
    return (size + 3) / 4 * 4;
}

using Bytes = std::span<const std::uint8_t>;

// The length of the message that the bytes begin with, in a byte order like this machine's; nothing while too little of
// it is there.
using Length = std::optional<std::size_t>(Bytes);

std::optional<std::size_t> lengthOfConnection(Bytes bytes)
{
    constexpr std::size_t head = 12;
    if (bytes.size() < head) {
        return std::nullopt;
    }
    return head + padded(numberAt<std::uint16_t>(bytes, 6)) + padded(numberAt<std::uint16_t>(bytes, 8));
}

std::optional<std::size_t> lengthOfRequest(Bytes bytes)
{
    if (bytes.size() < 4) {
        return std::nullopt;
    }
    if (const auto words = numberAt<std::uint16_t>(bytes, 2); words != 0) {
        return std::size_t{4} * words;
    }
    if (bytes.size() < 8) {
        return std::nullopt; // a big request, whose length follows
    }
    return std::size_t{4} * numberAt<std::uint32_t>(bytes, 4);
}

std::optional<std::size_t> lengthOfSetup(Bytes bytes)
{
    constexpr std::size_t head = 8;
    if (bytes.size() < head) {
        return std::nullopt;
    }
    return head + std::size_t{4} * numberAt<std::uint16_t>(bytes, 6);
}

constexpr std::uint8_t reply = 1;
constexpr std::uint8_t genericEvent = 35;

std::optional<std::size_t> lengthOfAnswer(Bytes bytes)
{
    constexpr std::size_t head = 32;
    if (bytes.size() < head) {
        return std::nullopt;
    }
    const bool hasMore = bytes[0] == reply || bytes[0] == genericEvent;
    return hasMore ? head + std::size_t{4} * numberAt<std::uint32_t>(bytes, 4) : head;
}

// What can be read of one side goes to the other, message by message; `look` sees all but the first one before. False
// when a side is gone.
template <class Direction, class Look>
bool forward(int from, int to, Direction& direction, Length& lengthOfFirst, Length& lengthOfNext, const Look& look)
{
    std::array<std::uint8_t, 65536> part{};
    const auto count = ::recv(from, part.data(), part.size(), 0);
    if (count <= 0) {
        return false;
    }
    auto& pending = direction.pending;
    pending.insert(pending.end(), part.begin(), part.begin() + count);
    Bytes rest(pending);
    for (;;) {
        const auto length = direction.isSetUp ? lengthOfNext(rest) : lengthOfFirst(rest);
        if (!length || *length > rest.size()) {
            break;
        }
        if (std::exchange(direction.isSetUp, true)) {
            look(rest.first(*length));
        }
        if (!sendAll(to, rest.first(*length))) {
            return false;
        }
        rest = rest.subspan(*length);
    }
    pending.erase(pending.begin(), pending.end() - static_cast<std::ptrdiff_t>(rest.size()));
    return true;
}

} // namespace

Interposer::Interposer(const XServer& server)
    : serverAddress(socketOf(server.display())), wake(::eventfd(0, EFD_CLOEXEC))
{
    listen();
    thread = std::jthread([this](const std::stop_token& stop) { serve(stop); });
}

Interposer::~Interposer()
{
    thread.request_stop();
    constexpr std::uint64_t once = 1;
    static_cast<void>(::write(wake.get(), &once, sizeof once));
}

void Interposer::listen()
{
    for (int number = firstDisplay; number < lastDisplay; ++number) {
        listener = FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        displayName = fmt::format(":{}", number);
        const auto address = abstractAddress(socketOf(displayName));
        if (::bind(listener.get(), reinterpret_cast<const sockaddr*>(&address.name), address.length) == 0) {
            ::listen(listener.get(), SOMAXCONN);
            return;
        }
    }
    throw HarnessError("no display number is free for an interposer");
}

void Interposer::arm(std::size_t count, std::function<bool(Request)> newFilter, std::function<void()> newAct)
{
    const std::scoped_lock lock(mutex);
    left = count;
    filter = std::move(newFilter);
    act = std::move(newAct);
    hasActed = false;
}

void Interposer::observe(std::function<void(Request)> newObserver)
{
    const std::scoped_lock lock(mutex);
    observer = std::move(newObserver);
}

void Interposer::observeEvents(std::function<void(Event)> newObserver)
{
    const std::scoped_lock lock(mutex);
    eventObserver = std::move(newObserver);
}

bool Interposer::disarm()
{
    const std::scoped_lock lock(mutex);
    filter = nullptr;
    act = nullptr;
    return hasActed;
}

void Interposer::lookAtRequest(Request request)
{
    const std::scoped_lock lock(mutex);
    if (observer) {
        observer(request);
    }
    if (hasActed || !filter || !filter(request)) {
        return;
    }
    if (left == 0) {
        hasActed = true;
        act();
    } else {
        --left;
    }
}

void Interposer::lookAtAnswer(std::span<const std::uint8_t> answer)
{
    const std::scoped_lock lock(mutex);
    const bool isEvent = answer[0] > reply;
    if (isEvent && eventObserver) {
        eventObserver(answer);
    }
}

void Interposer::serve(const std::stop_token& stop)
{
    while (!stop.stop_requested()) {
        std::vector<pollfd> sources = {{wake.get(), POLLIN, 0}, {listener.get(), POLLIN, 0}};
        for (const auto& link : links) {
            sources.push_back({link.program.get(), POLLIN, 0});
            sources.push_back({link.server.get(), POLLIN, 0});
        }
        if (::poll(sources.data(), sources.size(), -1) < 0 && errno != EINTR) {
            return;
        }
        auto source = sources.begin() + 2;
        std::erase_if(links, [&](Link& link) {
            const bool isAsking = (source++)->revents != 0;
            const bool isAnswered = (source++)->revents != 0;
            return (isAnswered && !forwardAnswers(link)) || (isAsking && !forwardRequests(link));
        });
        if (sources[1].revents != 0) {
            accept();
        }
    }
}

void Interposer::accept()
{
    Link link;
    link.program = FileDescriptor(::accept4(listener.get(), nullptr, nullptr, SOCK_CLOEXEC));
    link.server = FileDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    const auto address = abstractAddress(serverAddress);
    if (::connect(link.server.get(), reinterpret_cast<const sockaddr*>(&address.name), address.length) == 0) {
        links.push_back(std::move(link));
    }
}

bool Interposer::forwardAnswers(Link& link)
{
    return forward(link.server.get(), link.program.get(), link.answers, lengthOfSetup, lengthOfAnswer,
                   [this](Bytes answer) { lookAtAnswer(answer); });
}

bool Interposer::forwardRequests(Link& link)
{
    return forward(link.program.get(), link.server.get(), link.requests, lengthOfConnection, lengthOfRequest,
                   [this](Bytes request) { lookAtRequest(request); });
}

} // namespace quorvel::xtest
