#include "platform/x11/LoopSource.h"

namespace quorvel::x11 {

struct LoopSource::Record {
    GSource base;
    LoopSource* owner;
};

LoopSource::LoopSource()
{
    static GSourceFuncs functions{prepare, check, dispatch, nullptr, nullptr, nullptr};
    source = g_source_new(&functions, sizeof(Record));
    reinterpret_cast<Record*>(source)->owner = this;
    g_source_set_can_recurse(source, TRUE);
    g_source_attach(source, nullptr);
}

LoopSource::~LoopSource()
{
    g_source_destroy(source);
    g_source_unref(source);
}

void LoopSource::watchForInput(int fileDescriptor)
{
    inputTag = g_source_add_unix_fd(source, fileDescriptor, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP | G_IO_ERR));
}

void LoopSource::stopWatching()
{
    if (inputTag != nullptr) {
        g_source_remove_unix_fd(source, inputTag);
        inputTag = nullptr;
    }
}

void LoopSource::dispatchAt(std::optional<Clock::time_point> time)
{
    // Both clocks are the system's monotonic one.
    using std::chrono::microseconds;
    g_source_set_ready_time(source,
                            time ? std::chrono::ceil<microseconds>(time->time_since_epoch()).count() : gint64{-1});
}

void LoopSource::wake()
{
    if (g_main_context_is_owner(g_main_context_default()) == FALSE) {
        g_main_context_wakeup(nullptr);
    }
}

LoopSource& LoopSource::owner(GSource* source)
{
    return *reinterpret_cast<Record*>(source)->owner;
}

gboolean LoopSource::prepare(GSource* source, gint* timeout)
{
    *timeout = -1;
    return owner(source).hasWork() ? TRUE : FALSE;
}

gboolean LoopSource::check(GSource* source)
{
    auto& self = owner(source);
    const bool hasInput = self.inputTag != nullptr && g_source_query_unix_fd(source, self.inputTag) != 0;
    return hasInput || self.hasWork() ? TRUE : FALSE;
}

gboolean LoopSource::dispatch(GSource* source, GSourceFunc /*callback*/, gpointer /*data*/)
{
    owner(source).dispatch();
    return G_SOURCE_CONTINUE;
}

} // namespace quorvel::x11
