#pragma once

#include <expected>
#include <string>

namespace quorvel {

class Bundle;
class DesktopProbe;
class KeyboardLayout;
class Permissions;
struct Diagnosis;
struct StoredSettings;

// A desktop that can be asked.
struct ExaminedDesktop {
    DesktopProbe& probe;
    KeyboardLayout& keyboardLayout;
    const Permissions& permissions;
};

// Where the program would find itself if it were started now.
struct Surroundings {
    std::string sessionType;                             // as the environment calls it
    std::expected<ExaminedDesktop, std::string> desktop; // or why there is none to work on, a sentence
    const StoredSettings& settings;
    const Bundle& bundle;
};

// Finds out what the desktop offers and what stands in the way. Changes nothing.
Diagnosis examine(const Surroundings& surroundings);

} // namespace quorvel
