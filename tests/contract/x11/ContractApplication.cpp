#include "contract/x11/ContractApplication.h"

#include <array>

#include <sys/socket.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::contract {

ContractApplication::ContractApplication(const xtest::XServer& server, const std::string& name)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw xtest::HarnessError("cannot create a pair of sockets");
    }
    link = xtest::FileDescriptor(ends[0]);
    const xtest::FileDescriptor handedDown(ends[1]);
    child = std::make_unique<xtest::ChildProcess>(
        xtest::Command{{QUORVEL_CONTRACT_PROGRAM, name}, server.clientEnvironment(), handedDown.get()});
}

xcb_window_t ContractApplication::open(const std::string& title)
{
    return static_cast<xcb_window_t>(std::stoul(answerTo("open " + title)));
}

void ContractApplication::close(xcb_window_t window)
{
    answerTo("close " + std::to_string(window));
}

std::string ContractApplication::answerTo(const std::string& command)
{
    const auto line = command + "\n";
    if (write(link.get(), line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        throw xtest::HarnessError("a contract program does not listen");
    }
    const xtest::Deadline deadline;
    std::string answer;
    while (!answer.ends_with('\n')) {
        xtest::waitUntilReadable(link.get(), deadline, "the answer of a contract program");
        std::array<char, 256> buffer{};
        const auto count = read(link.get(), buffer.data(), buffer.size());
        if (count <= 0) {
            throw xtest::HarnessError("a contract program ended");
        }
        answer.append(buffer.data(), static_cast<std::size_t>(count));
    }
    return answer;
}

} // namespace quorvel::contract
