#pragma once

#include <filesystem>
#include <memory>

#include "platform/HttpClient.h"

namespace quorvel {

class MainQueue;

} // namespace quorvel

namespace quorvel::x11 {

// Loads what talks to the web when that happens for the first time; most runs of the program never do. Where the module
// cannot be loaded, every request fails and says so.
class WebClient final : public HttpClient {
public:
    WebClient(std::filesystem::path file, MainQueue& mainQueue);

    // The module that belongs to the running program, in the build tree and installed.
    static std::filesystem::path standardFile();

    Subscription get(const std::string& address, std::function<void(Answer)> completion) override;

private:
    Subscription fail(const std::string& reason, std::function<void(Answer)> completion);

    std::filesystem::path file;
    MainQueue& mainQueue;
    std::unique_ptr<HttpClient> client;
};

// The function that the module exports under httpClientEntryName. The result belongs to the caller.
using HttpClientEntry = HttpClient*();

inline constexpr const char* httpClientEntryName = "quorvelCreateHttpClient";

} // namespace quorvel::x11
