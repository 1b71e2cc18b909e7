#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "base/Keys.h"
#include "contract/ContractPorts.h"
#include "platform/Permissions.h"
#include "platform/ProcessId.h"

namespace quorvel::contract {

// A window of another program.
struct ContractWindow {
    ProcessId process = 0;
    std::uint64_t id = 0; // whatever the implementation knows it by
};

// A display, with what a bar along its top keeps for itself.
struct ContractScreen {
    AxRect bounds;
    double reservedAtTop = 0.0;
};

// What not every platform can do; tests that need it are skipped where it is missing.
enum class Capability {
    denyPermissions, // the platform has permissions, and the test can take one away
    keepKeysOfATap,  // a held key that a tap took stays taken until it is released
    showStatusItems, // there is somewhere to show them, and a person can choose from their menus
};

// A desktop with the ports of one platform under test, and the verbs of the person and the other programs on it. It is
// fresh for every test: one display of at least 1280 by 800 points whose top left corner is the origin, a US keyboard
// without locks, no other programs, nothing reserved, every permission given.
//
// A verb is over when the desktop itself has done what it says, not when the ports have heard of it; tests wait for
// the latter with waitUntil(). No verb lets a fixed time pass.
class ContractDesktop {
public:
    ContractDesktop() = default;
    ContractDesktop(const ContractDesktop&) = delete;
    ContractDesktop& operator=(const ContractDesktop&) = delete;
    virtual ~ContractDesktop() = default;

    virtual ContractPorts ports() = 0;
    virtual bool can(Capability capability) const = 0;

    // The main loop. turn() serves what is there, and where nothing is, it waits for the next event or timer (virtual
    // time goes on to it); false when nothing will come any more or patience is over, which fails the test.
    virtual bool turn() = 0;

    // Turns until everything that the verbs and the ports have caused so far has arrived, also through the window
    // manager and the other programs. Tests then look for what must not have happened.
    virtual void settle() = 0;

    // Turns until the predicate holds; false if it never does.
    bool waitUntil(const std::function<bool()>& predicate);

    // Displays, the first one the primary one, with its top left corner at the origin.
    virtual void connectScreens(const std::vector<ContractScreen>& screens) = 0;

    // Opens a window in front, with the keyboard. `frame` is the window as a person sees it, decoration included.
    // Windows that name the same application belong to one process.
    virtual ContractWindow openWindow(const std::string& application, const std::string& title,
                                      const AxRect& frame) = 0;
    virtual AxRect frameOf(const ContractWindow& window) = 0;
    virtual void closeWindow(const ContractWindow& window) = 0;
    virtual void endApplication(ProcessId process) = 0;

    // As its user does it, not through the ports under test.
    virtual void moveWindow(const ContractWindow& window, const AxRect& frame) = 0;
    virtual void minimizeWindow(const ContractWindow& window) = 0;
    virtual void focusWindow(const ContractWindow& window) = 0;
    virtual bool isMinimized(const ContractWindow& window) = 0;
    virtual bool isFocused(const ContractWindow& window) = 0;

    // Keys, with eventFlags. holdKey() leaves key and modifiers down; repeatKey() is one auto-repeat of a held key;
    // releaseKey() lets go of it and its modifiers.
    virtual void holdKey(KeyCode keyCode, std::uint64_t flags) = 0;
    virtual void repeatKey(KeyCode keyCode) = 0;
    virtual void releaseKey(KeyCode keyCode) = 0;
    void pressKey(KeyCode keyCode, std::uint64_t flags = 0);

    // The key-downs that the window's program has received, in order; those of modifier keys do not count.
    virtual std::vector<KeyCode> keysReceivedBy(const ContractWindow& window) = 0;

    // Another program takes a hot key: a key code and a mask of hotKeyModifiers.
    virtual void holdHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) = 0;

    virtual void clickMouse(AxPoint point) = 0;

    // The windows of this program that are on screen, as the desktop itself has them, front to back.
    virtual std::vector<AxRect> ownWindowsOnScreen() = 0;

    // Chooses an entry of the menu of this program's status item, as its user does; false if there is none to choose.
    virtual bool chooseFromStatusMenu(std::string_view title) = 0;

    // Resources of the program.
    virtual void addResource(std::string_view name, std::string_view extension, std::string_view content) = 0;
    virtual void addUnreadableResource(std::string_view name, std::string_view extension) = 0;

    // The settings as the next run of the program finds them; valid until the next call.
    virtual UserDefaults& reopenedUserDefaults() = 0;

    // What arrives where lines of the log go while `work` runs, in the pieces in which another program reads it.
    virtual std::vector<std::string> logged(const std::function<void()>& work) = 0;

    // Only with Capability::denyPermissions.
    virtual void deny(Permission permission) = 0;
};

// Provided by the platform that an executable is linked for.
std::unique_ptr<ContractDesktop> makeContractDesktop();

} // namespace quorvel::contract
