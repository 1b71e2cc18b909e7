#include "platform/DesktopProbe.h"

#include <algorithm>

namespace quorvel {

bool WindowManagerFacts::has(WindowManagerFeature feature) const
{
    return std::ranges::find(features, feature) != features.end();
}

} // namespace quorvel
