#pragma once

#include <thread>

#include "platform/MainQueue.h"
#include "platform/x11/TimerQueue.h"
#include "platform/x11/WorkQueue.h"

namespace quorvel::x11 {

// The main thread's loop, on GLib's default main context. Qt's event dispatcher uses the same context, so that its
// windows live under this loop without an event loop of their own.
class GlibMainLoop : public MainQueue {
public:
    // Belongs to the thread that creates it.
    GlibMainLoop();
    ~GlibMainLoop() override;

    // Turns until quit(); answers the status given there.
    int run();

    // Ends run() after the current turn, also if it has not begun yet.
    void quit(int status);

    // One turn, without waiting.
    void turn();

    void async(std::function<void()> work) override;
    void after(std::chrono::duration<double> delay, std::function<void()> work) override;
    Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) override;
    bool isMainThread() const override;

private:
    std::thread::id thread;
    WorkQueue workQueue;
    TimerQueue timerQueue;
    int exitStatus = 0;
    bool isQuitting = false;
};

} // namespace quorvel::x11
