#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "system/WindowInfo.h"

namespace quorvel {

enum class CycleDirection { forwards, backwards };

// The windows that the move/resize mode goes through, as they were when it began, and its place among them. Bounds are
// what windows are recognised by, so an entry follows its window when the mode leaves it for another one.
class CycledWindows {
public:
    // `current` is where the mode's first window is, if known.
    CycledWindows(std::vector<WindowInfo> windows, const std::optional<AxRect>& current);

    const std::vector<WindowInfo>& windows() const { return entries; }

    // Where the mode is; an entry that could not be entered counts as well. 0 for a first window that is not listed.
    std::size_t currentIndex() const { return index; }

    // The entry of the window that the mode has, if it is listed.
    std::optional<std::size_t> ownEntry() const { return own; }

    // To the next or the previous entry, round the ends; not while there are none.
    void step(CycleDirection direction);

    // Takes note of where the mode's window is now.
    void record(const AxRect& present);

    // The mode has taken the window of the entry at this index over.
    void enter(std::size_t newIndex);

    // Removes every entry that is where the mode's window was recorded last, and stays at the same index if it can.
    void removeCurrent();

private:
    std::optional<std::size_t> entryAt(const std::optional<AxRect>& rect) const;

    std::vector<WindowInfo> entries;
    std::optional<AxRect> recorded; // of the mode's window
    std::optional<std::size_t> own;
    std::size_t index = 0;
};

} // namespace quorvel
