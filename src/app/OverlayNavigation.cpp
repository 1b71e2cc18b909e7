#include "app/OverlayNavigation.h"

#include <limits>

#include "app/NumberInRange.h"

namespace quorvel {

namespace {

Shortcut checkedShortcut(const Settings& settings, const ShortcutKeys& keys)
{
    const auto stored = navigationShortcut(settings, keys);
    return {.keyCode = numberInRange(keys.keyCode, stored.keyCode, std::numeric_limits<std::uint16_t>::max()),
            .modifiers = numberInRange(keys.modifiers, stored.modifiers, std::numeric_limits<std::uint32_t>::max())};
}

} // namespace

std::optional<Action> overlayNavigation(const Settings& settings, KeyCode keyCode, std::uint32_t modifiers)
{
    std::optional<Action> match;
    for (const auto& command : navigationCommands) {
        const auto configured = checkedShortcut(settings, command.keys);
        const auto effective = configured.keyCode != 0 ? configured : Shortcut{command.builtInKey, 0};
        if (!match && effective == Shortcut{keyCode, modifiers}) {
            match = command.action;
        }
    }
    return match;
}

} // namespace quorvel
