#include "main/X11Display.h"

#include <utility>

#include <fmt/format.h>

#include "platform/x11/SessionType.h"

namespace quorvel {

namespace {

std::expected<std::unique_ptr<x11::Connection>, std::string> connect()
{
    const std::string session = x11::sessionType();
    if (session == "wayland") {
        return std::unexpected("This is a session of the type \"wayland\"; Quorvel works in X11 sessions.");
    }
    auto connection = x11::Connection::open(nullptr);
    if (!connection) {
        return std::unexpected(fmt::format("{} The session's type is \"{}\".", connection.error(), session));
    }
    return connection;
}

} // namespace

std::expected<X11Display, std::string> X11Display::open(MainQueue& mainQueue, StartMode mode)
{
    auto display = connected();
    if (!display) {
        return display;
    }
    display->claim = mode == StartMode::replace ? x11::InstanceClaim::takeOver(*display->connection, mainQueue)
                                                : x11::InstanceClaim::make(*display->connection);
    if (!display->claim) {
        return std::unexpected(mode == StartMode::replace ? "The Quorvel that is running on this display does not end."
                                                          : "Quorvel is already running on this display.");
    }
    if (auto prepared = display->prepare(mainQueue); !prepared) {
        return std::unexpected(std::move(prepared).error());
    }
    return display;
}

std::expected<X11Display, std::string> X11Display::openUnclaimed(MainQueue& mainQueue)
{
    auto display = connected();
    if (!display) {
        return display;
    }
    if (auto prepared = display->prepare(mainQueue); !prepared) {
        return std::unexpected(std::move(prepared).error());
    }
    return display;
}

std::expected<X11Display, std::string> X11Display::connected()
{
    auto connection = connect();
    if (!connection) {
        return std::unexpected(std::move(connection).error());
    }
    X11Display display;
    display.connection = std::move(*connection);
    display.source = std::make_unique<x11::ConnectionSource>(*display.connection);
    return display;
}

std::expected<void, std::string> X11Display::prepare(MainQueue& mainQueue)
{
    auto opened = x11::Keyboard::open(*connection, mainQueue);
    if (!opened) {
        return std::unexpected(std::move(opened).error());
    }
    keyboard = std::move(*opened);
    auto created = x11::OverlayGraphics::create(*connection);
    if (!created) {
        return std::unexpected(std::move(created).error());
    }
    graphics = std::move(*created);
    return {};
}

} // namespace quorvel
