#include "preferences/ShortcutHolder.h"

#include <cstdint>
#include <limits>

#include <fmt/format.h>

#include "layouts/HotKeyArithmetic.h"
#include "platform/HotKeys.h"
#include "preferences/ShortcutRow.h"

namespace quorvel {

namespace {

bool fits32Bits(std::int64_t number)
{
    return number >= 0 && number <= std::numeric_limits<std::uint32_t>::max();
}

bool isHeldByAnotherProgram(const Shortcut& shortcut, HotKeys& hotKeys)
{
    if (!fits32Bits(shortcut.keyCode) || !fits32Bits(shortcut.modifiers)) {
        return false;
    }
    constexpr std::uint32_t idOfNoHotKey = 0;
    const auto claim = hotKeys.registerHotKey(static_cast<std::uint32_t>(shortcut.keyCode),
                                              static_cast<std::uint32_t>(shortcut.modifiers),
                                              {hotKeySignature(u"Quorvel"), idOfNoHotKey});
    if (claim.status == osStatus::success && claim.ref != noHotKeyRef) {
        hotKeys.unregisterHotKey(claim.ref);
    }
    return claim.status == osStatus::hotKeyExists;
}

// Inside a mode a key counts with whatever modifiers: one of them resizes, and none tells two keys apart.
bool isModeOfBoth(const ShortcutRow& one, const ShortcutRow& other)
{
    return one.section == other.section && one.reading == ShortcutReading::mode &&
           other.reading == ShortcutReading::mode;
}

} // namespace

bool isHeldBy(const ShortcutRow& other, const ShortcutRow& row, const Settings& settings)
{
    const auto shown = shownShortcut(row, settings);
    const auto held = effectiveShortcut(other, settings);
    return isModeOfBoth(row, other) ? held.keyCode == shown.keyCode : held == shown;
}

std::optional<ShortcutHolder> holderOfShortcut(const ShortcutRow& row, const Settings& settings, HotKeys& hotKeys)
{
    for (const auto& other : shortcutRows()) {
        if (&other != &row && isHeldBy(other, row, settings)) {
            return ShortcutHolder{&other};
        }
    }
    return isHeldByAnotherProgram(shownShortcut(row, settings), hotKeys) ? std::optional(ShortcutHolder{})
                                                                         : std::nullopt;
}

std::string holderText(const ShortcutHolder& holder)
{
    if (holder.row == nullptr) {
        return "Also used by another program.";
    }
    return fmt::format("Also used by “{}” in {}.", holder.row->title, holder.row->section);
}

} // namespace quorvel
