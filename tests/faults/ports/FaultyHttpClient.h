#pragma once

#include <utility>

#include "platform/HttpClient.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyHttpClient final : public HttpClient {
public:
    FaultyHttpClient(HttpClient& real, PortFaults& faults) : real(real), faults(faults) {}

    // Fails by an error, by a document that is empty, and by one that is no feed.
    Subscription get(const std::string& address, std::function<void(Answer)> completion) override
    {
        const auto way = faults.next("HttpClient.get", 3);
        return real.get(address, [way, completion = std::move(completion)](const Answer& answer) {
            completion(way ? failure(*way) : answer);
        });
    }

private:
    static Answer failure(std::size_t way)
    {
        if (way == 0) {
            return std::unexpected("the server did not answer");
        }
        return way == 1 ? std::string() : std::string("<html><body>Welcome");
    }

    HttpClient& real;
    PortFaults& faults;
};

} // namespace quorvel
