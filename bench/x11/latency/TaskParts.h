#pragma once

#include <memory>
#include <string_view>

#include "latency/QuorvelProcess.h"
#include "latency/Trial.h"

namespace quorvel::bench {

inline const Chord superF9{{XKB_KEY_Super_L}, XKB_KEY_F9};
inline const Chord superF10{{XKB_KEY_Super_L}, XKB_KEY_F10};
inline const Chord switcherHotKey{{XKB_KEY_Super_L, XKB_KEY_Shift_L}, XKB_KEY_f};

constexpr std::string_view defaultSettings = R"(<plist version="1.0"><dict></dict></plist>)";

// A running Quorvel for the steps of a trial, which share it.
inline std::shared_ptr<QuorvelProcess> startQuorvel(BenchDesktop& desktop, std::string_view settings)
{
    return std::make_shared<QuorvelProcess>(desktop, settings);
}

// How many windows the focus switcher shows, a border and a label for each; one letter is the key that lists minimized
// windows.
constexpr std::size_t switcherWindows(std::size_t windowCount)
{
    constexpr std::size_t letterCount = 25;
    return 2 * (windowCount < letterCount ? windowCount : letterCount);
}

} // namespace quorvel::bench
