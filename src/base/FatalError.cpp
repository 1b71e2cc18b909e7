#include "base/FatalError.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace quorvel {

namespace {

std::function<void(std::string_view)>& interceptor()
{
    static std::function<void(std::string_view)> installed;
    return installed;
}

} // namespace

void fatalError(std::string_view message)
{
    if (interceptor()) {
        interceptor()(message);
    }
    std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(message.size()), message.data());
    std::abort();
}

Subscription interceptFatalErrors(std::function<void(std::string_view)> replacement)
{
    auto previous = std::exchange(interceptor(), std::move(replacement));
    return Subscription([previous = std::move(previous)] { interceptor() = previous; });
}

} // namespace quorvel
