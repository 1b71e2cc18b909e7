#include <cstdlib>

#include "platform/x11/web/SoupHttpClient.h"

// The module's one door; its type is HttpClientEntry.
extern "C" __attribute__((visibility("default"))) quorvel::HttpClient* quorvelCreateHttpClient()
{
    // Where many programs look for the authorities that take the place of the system's.
    const char* const authorities = std::getenv("SSL_CERT_FILE");
    return new quorvel::x11::SoupHttpClient(authorities != nullptr ? authorities : "");
}
