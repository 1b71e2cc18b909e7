#include "x11/preferences/ShellSession.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

#include "main/X11Display.h"
#include "main/X11Program.h"
#include "platform/x11/GlibMainLoop.h"
#include "platform/x11/LoopSource.h"
#include "support/Patience.h"

namespace quorvel::x11 {

// Hears of the display, and asks what a person waits for, in every turn of the program's loop.
class ShellSession::Watch final : public LoopSource {
public:
    explicit Watch(xtest::XClient& client) : client(client)
    {
        watchForInput(xcb_get_file_descriptor(client.connection()));
    }

    bool waitFor(const std::function<bool()>& predicate)
    {
        std::future<void> isMet;
        {
            const std::scoped_lock lock(mutex);
            wanted = predicate;
            met = {};
            isMet = met.get_future();
        }
        wake();
        const bool hasCome = isMet.wait_for(xtest::Deadline::patience) == std::future_status::ready;
        if (!hasCome) {
            const std::scoped_lock lock(mutex);
            wanted = nullptr;
            return isMet.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
        }
        isMet.get();
        return true;
    }

private:
    bool hasWork() override
    {
        const std::scoped_lock lock(mutex);
        try {
            client.handleEvents();
            if (wanted && wanted()) {
                wanted = nullptr;
                met.set_value();
            }
        } catch (const std::exception&) {
            if (wanted) {
                wanted = nullptr;
                met.set_exception(std::current_exception());
            }
        }
        return false;
    }

    void dispatch() override {}

    xtest::XClient& client;
    std::recursive_mutex mutex;
    std::function<bool()> wanted;
    std::promise<void> met;
};

ShellSession::ShellSession(xtest::TestDisplay& display, const std::filesystem::path& configuration) : display(display)
{
    for (const auto& [name, value] : display.server.clientEnvironment()) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    setenv("XDG_CONFIG_HOME", configuration.c_str(), 1);
}

ShellSession::~ShellSession() = default;

void ShellSession::run(const std::function<void()>& person)
{
    GlibMainLoop loop;
    auto opened = X11Display::open(loop, StartMode::run);
    ASSERT_TRUE(opened) << opened.error();
    X11Program program(loop, std::move(*opened));
    watch = std::make_unique<Watch>(display.client);
    std::thread thread([&] {
        try {
            person();
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();
        }
        loop.async([&loop] { loop.quit(0); });
    });
    EXPECT_EQ(program.run(), 0);
    thread.join();
    watch.reset();
}

void ShellSession::waitFor(const std::string& what, const std::function<bool()>& predicate)
{
    if (!watch->waitFor(predicate)) {
        throw xtest::HarnessError("Waited in vain for " + what);
    }
}

} // namespace quorvel::x11
