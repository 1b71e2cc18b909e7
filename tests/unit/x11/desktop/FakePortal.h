#pragma once

#include <mutex>
#include <string>
#include <thread>

#include <gio/gio.h>

#include "support/ChildProcess.h"

namespace quorvel::x11 {

// A session bus of the test's own with a desktop portal on it, which answers from a thread of its own.
class FakePortal {
public:
    FakePortal();
    FakePortal(const FakePortal&) = delete;
    FakePortal& operator=(const FakePortal&) = delete;
    ~FakePortal();

    const std::string& busAddress() const { return address; }

    // From now on the setting has that value, which is taken over; for null reading it fails.
    void answer(GVariant* value);

    // Tells everybody that a setting has changed.
    void announce(const char* name);

private:
    static void handleCall(GDBusConnection* connection, const char* sender, const char* path, const char* interface,
                           const char* method, GVariant* parameters, GDBusMethodInvocation* invocation, gpointer data);
    void connect();

    xtest::ChildProcess daemon;
    std::string address;
    std::mutex mutex;
    GVariant* value = nullptr;
    GMainContext* context = g_main_context_new();
    GMainLoop* loop = g_main_loop_new(context, FALSE);
    GDBusConnection* bus = nullptr;
    std::thread thread;
};

} // namespace quorvel::x11
