#pragma once

#include <expected>
#include <memory>
#include <string>

#include "main/CommandLine.h"
#include "platform/x11/Connection.h"
#include "platform/x11/ConnectionSource.h"
#include "platform/x11/InstanceClaim.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/overlays/OverlayGraphics.h"

namespace quorvel {

class MainQueue;

// What the program needs of an X display before anything else, and cannot run without.
struct X11Display {
    // The error is a line for people.
    static std::expected<X11Display, std::string> open(MainQueue& mainQueue, StartMode mode);

    // The same for somebody who only looks, beside the program that may be running there: without a claim.
    static std::expected<X11Display, std::string> openUnclaimed(MainQueue& mainQueue);

    std::unique_ptr<x11::Connection> connection;
    std::unique_ptr<x11::ConnectionSource> source;
    std::unique_ptr<x11::InstanceClaim> claim;
    std::unique_ptr<x11::Keyboard> keyboard;
    std::unique_ptr<x11::OverlayGraphics> graphics;

private:
    static std::expected<X11Display, std::string> connected();
    std::expected<void, std::string> prepare(MainQueue& mainQueue);
};

} // namespace quorvel
