#include "platform/x11/UnixSignals.h"

#include <memory>
#include <utility>

#include <glib-unix.h>

namespace quorvel::x11 {

namespace {

gboolean callHandler(gpointer data)
{
    (*static_cast<std::function<void()>*>(data))();
    return G_SOURCE_CONTINUE;
}

} // namespace

Subscription onUnixSignal(int number, std::function<void()> handler)
{
    auto owned = std::make_shared<std::function<void()>>(std::move(handler));
    const guint source = g_unix_signal_add(number, callHandler, owned.get());
    return Subscription([source, owned = std::move(owned)] { g_source_remove(source); });
}

} // namespace quorvel::x11
