#include "base/KeyCodeSet.h"

#include <algorithm>

namespace quorvel {

void KeyCodeSet::insert(KeyCode keyCode)
{
    const auto place = std::ranges::lower_bound(sorted, keyCode);
    if (place == sorted.end() || *place != keyCode) {
        sorted.insert(place, keyCode);
    }
}

bool KeyCodeSet::contains(KeyCode keyCode) const
{
    return std::ranges::binary_search(sorted, keyCode);
}

} // namespace quorvel
