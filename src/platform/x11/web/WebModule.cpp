#include "platform/x11/web/SoupHttpClient.h"

// The module's one door; its type is HttpClientEntry.
extern "C" __attribute__((visibility("default"))) quorvel::HttpClient* quorvelCreateHttpClient()
{
    return new quorvel::x11::SoupHttpClient();
}
