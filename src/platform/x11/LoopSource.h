#pragma once

#include <chrono>
#include <optional>

#include <glib.h>

namespace quorvel::x11 {

// Something that GLib's default main context waits for; attached as long as it lives. Its work may itself run the loop
// (a modal alert does), in which case it is asked and called again from within.
class LoopSource {
public:
    using Clock = std::chrono::steady_clock;

    LoopSource(const LoopSource&) = delete;
    LoopSource& operator=(const LoopSource&) = delete;
    virtual ~LoopSource();

protected:
    LoopSource();

    // Calls dispatch() when the descriptor can be read or was closed by its other end.
    void watchForInput(int fileDescriptor);
    void stopWatching();

    // Calls dispatch() at that time, again and again until told another one.
    void dispatchAt(std::optional<Clock::time_point> time);

    // Makes the loop ask hasWork() even if it is waiting. May be called from any thread.
    static void wake();

private:
    struct Record;

    // Whether dispatch() is to be called now. Asked before and after the loop waits.
    virtual bool hasWork() = 0;
    virtual void dispatch() = 0;

    static gboolean prepare(GSource* source, gint* timeout);
    static gboolean check(GSource* source);
    static gboolean dispatch(GSource* source, GSourceFunc callback, gpointer data);
    static LoopSource& owner(GSource* source);

    GSource* source;
    gpointer inputTag = nullptr;
};

} // namespace quorvel::x11
