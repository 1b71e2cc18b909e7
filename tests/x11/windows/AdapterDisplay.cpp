#include "x11/windows/AdapterDisplay.h"

#include "support/Patience.h"

namespace quorvel::x11 {

namespace {

std::unique_ptr<Connection> connect(const xtest::XServer& server)
{
    auto connection = Connection::open(server.display().c_str());
    if (!connection) {
        throw xtest::HarnessError(connection.error());
    }
    return std::move(*connection);
}

} // namespace

AdapterDisplay::AdapterDisplay(const xtest::XServer::Options& options)
    : display(options),
      loop(display.client),
      connection(connect(display.server)),
      source(*connection),
      adapters(*connection, loop.mainLoop(), {{"/bin/true"}, [this] { ++terminations; }})
{}

AxElementRef AdapterDisplay::elementOf(ProcessId process, xcb_window_t window)
{
    return std::make_shared<X11AxElement>(process, window);
}

AxElementRef AdapterDisplay::elementOf(const xtest::ClientProcess& program)
{
    return elementOf(program.process(), program.window());
}

void AdapterDisplay::write(const AxElementRef& element, const AxRect& rect)
{
    for (int i = 0; i < 2; ++i) {
        loop.mainLoop().async([this, element, rect] {
            static_cast<void>(adapters.accessibility.setAttribute(element, axNames::position, rect.origin()));
            static_cast<void>(adapters.accessibility.setAttribute(element, axNames::size, rect.size()));
        });
    }
}

void AdapterDisplay::place(const AxElementRef& element, const AxRect& rect)
{
    write(element, rect);
    loop.drain();
    loop.waitFor("the window to be placed", [this] { return !adapters.placements.isBusy(); });
}

} // namespace quorvel::x11
