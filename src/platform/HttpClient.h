#pragma once

#include <expected>
#include <functional>
#include <string>

#include "base/Subscription.h"

namespace quorvel {

// Reads small documents from the web.
class HttpClient {
public:
    // The document's bytes; the error is the end of a sentence for people: "the server answered 404 Not Found".
    using Answer = std::expected<std::string, std::string>;

    HttpClient() = default;
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;
    virtual ~HttpClient() = default;

    // Asks for the document at an HTTP or HTTPS address. `completion` runs once, from the main loop, never from inside
    // this call; not any more once the token has gone. A document of more than a mebibyte is an error, and so is a
    // server that stays silent for half a minute.
    virtual Subscription get(const std::string& address, std::function<void(Answer)> completion) = 0;
};

} // namespace quorvel
