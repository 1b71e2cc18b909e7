#include "e2e/StillPicture.h"

#include <poll.h>

namespace quorvel::e2e {

xtest::Screenshot stillPicture(xtest::XClient& client, const xtest::PixelRect& part)
{
    constexpr int stillness = 250; // milliseconds without painting
    client.sync();
    do {
        while (client.handleEvents()) {
        }
        pollfd entry{.fd = xcb_get_file_descriptor(client.connection()), .events = POLLIN, .revents = 0};
        if (poll(&entry, 1, stillness) == 0) {
            break;
        }
    } while (true);
    return {client, part};
}

} // namespace quorvel::e2e
