#include "platform/x11/desktop/WebClient.h"

#include <utility>

#include <fmt/format.h>

#include "platform/MainQueue.h"
#include "platform/x11/desktop/LoadableModule.h"

namespace quorvel::x11 {

WebClient::WebClient(std::filesystem::path file, MainQueue& mainQueue) : file(std::move(file)), mainQueue(mainQueue) {}

std::filesystem::path WebClient::standardFile()
{
    return moduleFile("quorvel-web.so");
}

Subscription WebClient::get(const std::string& address, std::function<void(Answer)> completion)
{
    if (!client) {
        const auto entry = moduleFunction(file, httpClientEntryName);
        if (!entry) {
            return fail(entry.error(), std::move(completion));
        }
        client.reset(reinterpret_cast<HttpClientEntry*>(*entry)());
    }
    return client->get(address, std::move(completion));
}

Subscription WebClient::fail(const std::string& reason, std::function<void(Answer)> completion)
{
    auto token = std::make_shared<const int>(0);
    mainQueue.async([reason, completion = std::move(completion), token = std::weak_ptr(token)] {
        if (!token.expired()) {
            completion(std::unexpected(fmt::format("this program cannot reach the web: {}", reason)));
        }
    });
    return Subscription([token = std::move(token)]() mutable { token.reset(); });
}

} // namespace quorvel::x11
