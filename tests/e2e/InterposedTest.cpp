#include "e2e/InterposedTest.h"

#include <unistd.h>

#include "support/Patience.h"

namespace quorvel::e2e {

InterposedTest::InterposedTest()
{
    interposer.observe([this](xtest::Interposer::Request request) {
        constexpr std::uint8_t getSelectionOwner = 23;
        if (request[0] == getSelectionOwner) {
            answers.release();
        }
    });
}

InterposedTest::~InterposedTest()
{
    interposer.observe(nullptr);
    interposer.observeEvents(nullptr);
}

void InterposedTest::startInterposed()
{
    start({.environment = {{"DISPLAY", interposer.display()}}}).appearAs(getpid());
}

// It looks for a tray each time that one is announced, and finds none.
void InterposedTest::settle()
{
    for (int round = 0; round < 3; ++round) {
        while (answers.try_acquire()) {
        }
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = display.client.root();
        event.type = display.client.atom("MANAGER");
        event.data.data32[1] = display.client.atom("_NET_SYSTEM_TRAY_S0");
        xcb_send_event(display.client.connection(), 0, display.client.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&event));
        xcb_flush(display.client.connection());
        ASSERT_TRUE(answers.try_acquire_for(xtest::Deadline::patience));
    }
}

} // namespace quorvel::e2e
