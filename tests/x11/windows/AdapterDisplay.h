#pragma once

#include <memory>

#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/windows/WindowAdapters.h"
#include "support/ClientProcess.h"
#include "support/TestDisplay.h"
#include "x11/windows/AdapterLoop.h"

namespace quorvel::x11 {

// A display, and the adapters for screens, windows and applications connected to it.
class AdapterDisplay {
public:
    explicit AdapterDisplay(const xtest::XServer::Options& options);
    AdapterDisplay() : AdapterDisplay(xtest::XServer::Options()) {}

    xtest::XClient& client() { return display.client; }

    static AxElementRef elementOf(ProcessId process, xcb_window_t window);
    static AxElementRef elementOf(const xtest::ClientProcess& program);

    // Writes position and size as the portable program does: both, twice, each pair in a work item of its own.
    void write(const AxElementRef& element, const AxRect& rect);

    // The same, and waits until the adapter has done with the window.
    void place(const AxElementRef& element, const AxRect& rect);

    // Waits for the loop.
    void waitFor(const std::string& what, const std::function<bool()>& predicate) { loop.waitFor(what, predicate); }

    xtest::TestDisplay display;
    AdapterLoop loop;
    int terminations = 0;
    std::unique_ptr<Connection> connection;
    ConnectionSource source;
    WindowAdapters adapters;
};

} // namespace quorvel::x11
