#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel::fakes {

// The Mac behind the fakes of the system's functions. Its windows, applications and keys are those of a desktop in
// memory, and its time is that desktop's; what only macOS has stands here. One at a time: the functions, which name no
// desktop, act on the one that exists.
class FakeDesktop {
public:
    explicit FakeDesktop(SimulatedDesktop& desktop);
    FakeDesktop(const FakeDesktop&) = delete;
    FakeDesktop& operator=(const FakeDesktop&) = delete;
    ~FakeDesktop();

    static FakeDesktop& current();

    // Between the process of this program, as the system has it, and the one that it is on the desktop in memory.
    static ProcessId onDesktop(int systemProcess);
    static int onSystem(ProcessId process);

    SimulatedDesktop& desktop;

    // Sources that the run loop holds. A program that ends leaves none behind.
    std::size_t runLoopSources = 0;
    std::vector<std::shared_ptr<void>> runLoopBlocks;

    // Accessibility: what applications say to "AXEnhancedUserInterface", and the seconds that calls have waited for
    // applications that hang.
    std::map<ProcessId, bool> enhancedInterfaces;
    double secondsWaited = 0.0;

    // Keys: some program keeps them to itself, as while a password is typed; the input method has no table of keys.
    bool isSecureInputEnabled = false;
    bool typesByInputMethod = false;

    std::shared_ptr<void> userDefaults; // see UserDefaults.mm
};

// What a program did wrong: mistakes that the system bears in silence. A test that has some fails.
void complain(std::string mistake);
std::vector<std::string> takeComplaints();

// References to Core Foundation objects that somebody has taken (Create, Copy, Retain) and not given back.
long ownedReferences();
void ownReferences(long change);

} // namespace quorvel::fakes
