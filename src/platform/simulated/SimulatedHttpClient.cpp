#include "platform/simulated/SimulatedHttpClient.h"

#include <memory>
#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel {

Subscription SimulatedHttpClient::get(const std::string& address, std::function<void(Answer)> completion)
{
    journal.record("HttpClient.get({})", address);
    auto token = std::make_shared<int>(0);
    mainQueue.async([this, address, completion = std::move(completion), token = std::weak_ptr<const int>(token)] {
        if (!token.expired()) {
            const auto answer = answers.find(address);
            completion(answer != answers.end() ? answer->second
                                               : Answer(std::unexpected("the server answered 404 Not Found")));
        }
    });
    return Subscription([token = std::move(token)]() mutable { token.reset(); });
}

} // namespace quorvel
