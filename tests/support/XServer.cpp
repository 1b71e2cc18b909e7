#include "support/XServer.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

// The virtual part is larger than the screen, so that outputs can be added beside it.
constexpr auto dummyConfiguration = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoEnableDevices" "false"
EndSection
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Virtual {} {}
        Modes "1920x1080" "1280x1024" "1280x720"
    EndSubSection
EndSection
)";

std::string readDisplayNumber(int descriptor)
{
    const Deadline deadline;
    std::string text;
    while (text.find('\n') == std::string::npos) {
        waitUntilReadable(descriptor, deadline, "the X server to tell its display");
        std::array<char, 16> part{};
        const auto count = read(descriptor, part.data(), part.size());
        if (count <= 0) {
            throw HarnessError("the X server ended before it was ready");
        }
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    text.erase(text.find('\n'));
    return text;
}

} // namespace

XServer::XServer(const Options& options) : options(options)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw HarnessError("cannot create a pipe");
    }
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);

    Command command;
    command.descriptor = writing.get();
    const char* path = std::getenv("PATH");
    command.environment = {{"PATH", path != nullptr ? path : "/usr/bin:/bin"}, {"HOME", homeDirectory.path().string()}};
    if (options.kind == Kind::virtualOutput) {
        // Without -noreset the server forgets its monitors when the last client leaves.
        command.words = {"Xvfb",
                         "-displayfd",
                         "3",
                         "-noreset",
                         "-screen",
                         "0",
                         fmt::format("{}x{}x24", options.width, options.height),
                         "-dpi",
                         "96",
                         "-nolisten",
                         "tcp"};
    } else {
        const auto configuration = homeDirectory.write(
            "xorg.conf", fmt::format(fmt::runtime(dummyConfiguration), options.width, options.height));
        command.words = {"Xorg",        "-displayfd",
                         "3",           "-noreset",
                         "-config",     configuration.string(),
                         "-logfile",    (homeDirectory.path() / "xorg.log").string(),
                         "-nolisten",   "tcp",
                         "-novtswitch", "-sharevts"};
    }
    process = std::make_unique<ChildProcess>(command);
    writing.reset(); // the child holds the only write end, so its end is noticed
    displayName = ":" + readDisplayNumber(reading.get());

    std::filesystem::create_directory(homeDirectory.path() / "runtime");
    std::filesystem::permissions(homeDirectory.path() / "runtime", std::filesystem::perms::owner_all);
}

XServer::~XServer()
{
    if (process->hasEnded()) {
        return;
    }
    process->sendSignal(SIGTERM); // the server removes its lock file and socket on the way out
    try {
        process->waitForEnd();
    } catch (const HarnessError&) {
        process->kill();
    }
}

bool XServer::isAvailable(Kind kind)
{
    if (kind == Kind::virtualOutput) {
        return findProgram("Xvfb").has_value();
    }
    return geteuid() == 0 && findProgram("Xorg").has_value() &&
           std::filesystem::exists("/usr/lib/xorg/modules/drivers/dummy_drv.so");
}

std::map<std::string, std::string> XServer::clientEnvironment() const
{
    const auto home = homeDirectory.path();
    const char* path = std::getenv("PATH");
    return {
        {"PATH", path != nullptr ? path : "/usr/bin:/bin"},
        {"DISPLAY", displayName},
        {"HOME", home.string()},
        {"XDG_CONFIG_HOME", (home / ".config").string()},
        {"XDG_CACHE_HOME", (home / ".cache").string()},
        {"XDG_DATA_HOME", (home / ".local/share").string()},
        {"XDG_RUNTIME_DIR", (home / "runtime").string()},
        {"XDG_SESSION_TYPE", "x11"},
        {"LANG", "C.UTF-8"},
        {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
        {"GSETTINGS_BACKEND", "memory"},
        {"NO_AT_BRIDGE", "1"},
        {"QT_QPA_PLATFORM", "xcb"},
    };
}

void XServer::kill()
{
    process->kill();
}

} // namespace quorvel::xtest
