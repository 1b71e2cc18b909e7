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

// The length of the connection's first message, of a byte order like this machine's, and of each request after it;
// nothing while too little of it is there.
std::optional<std::size_t> lengthOfFirst(std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t head = 12;
    if (bytes.size() < head) {
        return std::nullopt;
    }
    return head + padded(numberAt<std::uint16_t>(bytes, 6)) + padded(numberAt<std::uint16_t>(bytes, 8));
}

std::optional<std::size_t> lengthOfRequest(std::span<const std::uint8_t> bytes)
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

bool Interposer::disarm()
{
    const std::scoped_lock lock(mutex);
    filter = nullptr;
    act = nullptr;
    return hasActed;
}

void Interposer::look(Request request)
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
            return (isAnswered && !forwardReplies(link)) || (isAsking && !forwardRequests(link));
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

bool Interposer::forwardReplies(const Link& link) const
{
    std::array<std::uint8_t, 65536> part{};
    const auto count = ::recv(link.server.get(), part.data(), part.size(), 0);
    return count > 0 && sendAll(link.program.get(), {part.data(), static_cast<std::size_t>(count)});
}

bool Interposer::forwardRequests(Link& link)
{
    std::array<std::uint8_t, 65536> part{};
    const auto count = ::recv(link.program.get(), part.data(), part.size(), 0);
    if (count <= 0) {
        return false;
    }
    link.pending.insert(link.pending.end(), part.begin(), part.begin() + count);
    std::span<const std::uint8_t> rest(link.pending);
    for (;;) {
        const auto length = link.isSetUp ? lengthOfRequest(rest) : lengthOfFirst(rest);
        if (!length || *length > rest.size()) {
            break;
        }
        if (std::exchange(link.isSetUp, true)) {
            look(rest.first(*length));
        }
        if (!sendAll(link.server.get(), rest.first(*length))) {
            return false;
        }
        rest = rest.subspan(*length);
    }
    link.pending.erase(link.pending.begin(), link.pending.end() - static_cast<std::ptrdiff_t>(rest.size()));
    return true;
}

} // namespace quorvel::xtest
