#include "platform/x11/GlibMainLoop.h"

#include <utility>

namespace quorvel::x11 {

namespace {

LoopSource::Clock::duration clockDuration(std::chrono::duration<double> duration)
{
    return std::chrono::ceil<LoopSource::Clock::duration>(duration);
}

} // namespace

GlibMainLoop::GlibMainLoop() : thread(std::this_thread::get_id()) {}

GlibMainLoop::~GlibMainLoop() = default;

int GlibMainLoop::run()
{
    while (!isQuitting) {
        g_main_context_iteration(nullptr, TRUE);
    }
    isQuitting = false;
    return exitStatus;
}

void GlibMainLoop::quit(int status)
{
    exitStatus = status;
    isQuitting = true;
    g_main_context_wakeup(nullptr);
}

void GlibMainLoop::turn()
{
    g_main_context_iteration(nullptr, FALSE);
}

void GlibMainLoop::async(std::function<void()> work)
{
    workQueue.add(std::move(work));
}

void GlibMainLoop::after(std::chrono::duration<double> delay, std::function<void()> work)
{
    timerQueue.addOnce(clockDuration(delay), std::move(work));
}

Subscription GlibMainLoop::repeat(std::chrono::duration<double> interval, std::function<void()> work)
{
    return timerQueue.addRepeating(clockDuration(interval), std::move(work));
}

bool GlibMainLoop::isMainThread() const
{
    return std::this_thread::get_id() == thread;
}

} // namespace quorvel::x11
