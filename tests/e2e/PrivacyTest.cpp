#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <utility>

#include <fmt/format.h>

#include "e2e/InterposedTest.h"
#include "support/WebServer.h"

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// What the program tells others: in its log, and over the network.
class Privacy : public ModesTest {
protected:
    std::vector<std::string> newLinesWith(const std::string& text)
    {
        auto lines = newLines();
        std::erase_if(lines, [&](const std::string& line) { return line.find(text) == std::string::npos; });
        return lines;
    }

    // The program's sockets, by the numbers that the kernel lists them under.
    std::set<std::string> sockets()
    {
        std::set<std::string> numbers;
        for (const auto& entry : fs::directory_iterator(fmt::format("/proc/{}/fd", quorvel->program().id()))) {
            std::error_code gone;
            const std::string target = fs::read_symlink(entry.path(), gone);
            if (target.starts_with("socket:[")) {
                numbers.insert(target.substr(8, target.size() - 9));
            }
        }
        return numbers;
    }

    // Those of them that reach beyond this machine.
    std::vector<std::string> networkSockets()
    {
        const auto own = sockets();
        EXPECT_THAT(own, Not(IsEmpty())); // that to the X server
        std::vector<std::string> found;
        for (const auto* table : {"tcp", "tcp6", "udp", "udp6", "raw", "raw6"}) {
            std::ifstream file(fmt::format("/proc/{}/net/{}", quorvel->program().id(), table));
            std::string line;
            std::getline(file, line); // the heading
            while (std::getline(file, line)) {
                constexpr int fieldsBefore = 9;
                std::istringstream fields(line);
                std::string field;
                for (int i = 0; i <= fieldsBefore; ++i) {
                    fields >> field;
                }
                if (own.contains(field)) {
                    found.push_back(line);
                }
            }
        }
        return found;
    }
};

TEST_F(Privacy, WhatIsTypedOutsideOfTheModesIsNotLogged)
{
    start();
    const auto window = openWindow();
    newLines();
    for (const xcb_keysym_t key : {XKB_KEY_s, XKB_KEY_e, XKB_KEY_c, XKB_KEY_r, XKB_KEY_t}) {
        display.keyboard.tap(key);
    }
    window->waitForPress(display.keyboard.codeOf(XKB_KEY_t));
    quorvel->pressHotKey();
    EXPECT_EQ(quorvel->program().waitForLineStartingWith("Activate"), "Activate overlay shortcut fired");
    EXPECT_EQ(newLines().front(), "Activate overlay shortcut fired");
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();
    endCleanly();
}

// What the server tells the program.
class PrivacyOfTheKeyboard : public InterposedTest {
protected:
    PrivacyOfTheKeyboard()
    {
        interposer.observeEvents([this](xtest::Interposer::Event event) {
            const auto type = event[0] & 0x7FU;
            if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE || type == XCB_GE_GENERIC) {
                heard.push_back(type == XCB_GE_GENERIC ? 0 : event[1]);
            }
        });
    }

    // The codes of the keys, 0 for an event of an extension, since the last call.
    std::vector<int> newlyHeard()
    {
        settle();
        return std::exchange(heard, {});
    }

private:
    std::vector<int> heard;
};

TEST_F(PrivacyOfTheKeyboard, OfWhatIsTypedForOthersTheServerSendsNothing)
{
    startInterposed();
    const auto window = openWindow();
    newlyHeard();
    for (const xcb_keysym_t key : {XKB_KEY_s, XKB_KEY_e, XKB_KEY_c, XKB_KEY_r, XKB_KEY_t}) {
        display.keyboard.tap(key);
    }
    window->waitForPress(display.keyboard.codeOf(XKB_KEY_t));
    EXPECT_THAT(newlyHeard(), IsEmpty());

    enter(Mode::moveResize, window->id());
    EXPECT_THAT(newlyHeard(), testing::Contains(display.keyboard.codeOf(XKB_KEY_r))); // the hot key's
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(display.keyboard.codeOf(XKB_KEY_k));
    EXPECT_THAT(newlyHeard(), IsEmpty());
    leave();
    endCleanly();
}

TEST_F(Privacy, OfTheKeysOfAModeOnlyThoseThatItTakesAreLogged)
{
    start();
    const auto window = openWindow();
    enter(Mode::overlay, window->id());
    typeIntoOverlay(XKB_KEY_9); // which leads nowhere and leaves the overlay as it is
    leave();
    EXPECT_THAT(newLinesWith("key: "), ElementsAre("Blocker blocked key: 25", "Blocker blocked key: 53"));

    enter(Mode::switcher, window->id());
    newLines();
    leave();
    EXPECT_THAT(newLines(), IsEmpty());

    enter(Mode::moveResize, window->id());
    newLines();
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(display.keyboard.codeOf(XKB_KEY_k));
    leave();
    EXPECT_THAT(newLinesWith("key"), IsEmpty());
    endCleanly();
}

TEST_F(Privacy, TitlesAreLoggedByTheFocusSwitcherAlone)
{
    start();
    const auto window = openWindow();
    const auto minimized = openWindow();
    for (auto* each : {window.get(), minimized.get()}) {
        display.client.activate(each->id());
        each->setTitle("Letter to my bank");
    }
    minimized->iconify();
    newLines();
    for (const Mode mode : {Mode::overlay, Mode::moveResize}) {
        display.client.activate(window->id());
        work(mode, window->id());
    }
    EXPECT_THAT(newLinesWith("bank"), IsEmpty());

    enter(Mode::switcher, window->id());
    display.keyboard.tap(XKB_KEY_m);
    display.keyboard.tap(XKB_KEY_Tab);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilIdle();
    const auto lines = newLinesWith("bank");
    EXPECT_THAT(lines, Not(IsEmpty()));
    EXPECT_THAT(lines, Each(StartsWith("🔍 Focus Switcher: Label ")));
    endCleanly();
}

TEST_F(Privacy, NothingIsConnectedToTheNetworkBeforeACheckForUpdates)
{
    const xtest::WebServer server("");
    start({.environment = {{"QUORVEL_UPDATE_FEED", server.address()}}});
    for (const Mode mode : allModes) {
        workAnew(mode);
        EXPECT_THAT(networkSockets(), IsEmpty());
    }
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
