#include "doctor/HotKeyFindings.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "platform/DesktopProbe.h"
#include "platform/KeyboardLayout.h"
#include "preferences/ShortcutText.h"
#include "settings/Settings.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

namespace {

enum class Kind { main, navigation };

struct Command {
    std::string_view id;
    std::string_view name;
    ShortcutKeys keys;
    Kind kind;
};

// In the order in which the program registers them.
constexpr Command commands[] = {
    {"hot-keys.layout-overlay", "the layout overlay", shortcutKeys::activateOverlay, Kind::main},
    {"hot-keys.move-resize", "moving and resizing", shortcutKeys::moveResize, Kind::main},
    {"hot-keys.focus-switcher", "the focus switcher", shortcutKeys::focusSwitcher, Kind::main},
    {"hot-keys.next-layout", "the next layout", shortcutKeys::nextLayout, Kind::navigation},
    {"hot-keys.previous-layout", "the previous layout", shortcutKeys::previousLayout, Kind::navigation},
    {"hot-keys.next-screen", "the next screen", shortcutKeys::nextScreen, Kind::navigation},
    {"hot-keys.previous-screen", "the previous screen", shortcutKeys::previousScreen, Kind::navigation},
};

struct HotKey {
    const Command* command;
    Shortcut shortcut;
    std::string text; // as a person reads it
};

bool isInRange(const Shortcut& shortcut)
{
    constexpr std::int64_t largest = std::numeric_limits<std::uint32_t>::max();
    return shortcut.keyCode >= 0 && shortcut.keyCode <= largest && shortcut.modifiers >= 0 &&
           shortcut.modifiers <= largest;
}

// A key without modifiers has no spelled-out form that differs from its plain one.
std::string words(const Shortcut& shortcut, const Settings& settings, const KeyboardLayout& keyboardLayout)
{
    const auto profile = keyboardLayoutProfile(settings);
    const auto spelledOut = spelledOutShortcut(shortcut, profile, keyboardLayout.modifierNames());
    return spelledOut.empty() ? shortcutText(shortcut, profile) : spelledOut;
}

// Shortcuts that only work inside the overlay are nobody's business, and those out of range are told of among settings.
std::vector<HotKey> hotKeysOf(const Settings& settings, const KeyboardLayout& keyboardLayout)
{
    std::vector<HotKey> result;
    for (const auto& command : commands) {
        const bool isMain = command.kind == Kind::main;
        const auto shortcut =
            isMain ? mainShortcut(settings, command.keys) : navigationShortcut(settings, command.keys);
        const bool isHotKey = isMain || (shortcut.keyCode != 0 && shortcut.modifiers != 0);
        if (isHotKey && isInRange(shortcut)) {
            result.push_back({&command, shortcut, words(shortcut, settings, keyboardLayout)});
        }
    }
    return result;
}

std::string_view name(HotKeyHolder holder)
{
    switch (holder) {
    case HotKeyHolder::nobody:
        return "nobody";
    case HotKeyHolder::runningProgram:
        return "quorvel";
    case HotKeyHolder::anotherProgram:
        return "another program";
    case HotKeyHolder::noSuchKey:
        return "no such key";
    }
    return {};
}

void describe(Finding& finding, const HotKey& hotKey, HotKeyHolder holder, bool isProgramRunning)
{
    const auto say = [&](Verdict verdict, std::string_view state, std::string_view advice) {
        finding.verdict = verdict;
        finding.text = fmt::format("{}, {}: {}.", hotKey.text, hotKey.command->name, state);
        finding.advice = advice;
    };
    switch (holder) {
    case HotKeyHolder::nobody:
        if (isProgramRunning) {
            say(Verdict::notice, "free, although Quorvel is running",
                "It gives its hot keys back while its preferences are open.");
        } else {
            say(Verdict::good, "free", "");
        }
        break;
    case HotKeyHolder::runningProgram:
        say(Verdict::good, "held by the Quorvel that is running", "");
        break;
    case HotKeyHolder::anotherProgram:
        say(Verdict::problem, "another program holds it",
            "Choose another one in the preferences, or take it from that program; the display does not tell which it "
            "is.");
        break;
    case HotKeyHolder::noSuchKey:
        say(Verdict::problem, "this keyboard has no such key", "Choose another one in the preferences.");
        break;
    }
}

Finding hotKeyFinding(const HotKey& hotKey, DesktopProbe& probe, bool isProgramRunning)
{
    const auto holder = probe.hotKeyHolder(static_cast<std::uint32_t>(hotKey.shortcut.keyCode),
                                           static_cast<std::uint32_t>(hotKey.shortcut.modifiers));
    Finding finding{.id = std::string(hotKey.command->id),
                    .details = {{"keys", {hotKey.text}},
                                {"keyCode", {hotKey.shortcut.keyCode}},
                                {"modifiers", {hotKey.shortcut.modifiers}},
                                {"holder", {std::string(name(holder))}}}};
    describe(finding, hotKey, holder, isProgramRunning);
    return finding;
}

Finding switchedOff(const Command& command)
{
    return {.id = std::string(command.id),
            .verdict = Verdict::notice,
            .text = fmt::format("No hot key is set for {}.", command.name),
            .advice = "The preferences set one."};
}

// The one that is registered first has it.
Finding taken(const HotKey& hotKey, const HotKey& earlier)
{
    return {.id = std::string(hotKey.command->id),
            .verdict = Verdict::problem,
            .text = fmt::format("{}, {}: it is set for {}, too, which alone works.", hotKey.text, hotKey.command->name,
                                earlier.command->name),
            .advice = "Choose another one in the preferences."};
}

// Combinations with Command that do not arrive, whoever else holds them or not.
Finding commandKeyFinding(const std::vector<std::string>& hotKeys, const DesktopFacts& facts,
                          const KeyboardLayout& keyboardLayout)
{
    const bool isIceWM = facts.windowManager && facts.windowManager->name.starts_with("IceWM");
    return {.id = "hot-keys.command-key",
            .verdict = isIceWM ? Verdict::problem : Verdict::notice,
            .text = fmt::format("Another program holds the {} key by itself, so that {} may not arrive.",
                                keyboardLayout.modifierNames().command, fmt::join(hotKeys, ", ")),
            .advice = isIceWM ? "Write Win95Keys=0 into IceWM's file \"preferences\", or choose other hot keys."
                              : "If they do not, choose others in the preferences."};
}

} // namespace

DiagnosisSection hotKeysSection(const Settings& settings, const DesktopFacts& facts, DesktopProbe& probe,
                                KeyboardLayout& keyboardLayout)
{
    DiagnosisSection section{"hot-keys", "Hot keys", {}};
    const auto hotKeys = hotKeysOf(settings, keyboardLayout);
    std::vector<std::string> withCommand;
    for (auto hotKey = hotKeys.begin(); hotKey != hotKeys.end(); ++hotKey) {
        const auto earlier = std::find_if(hotKeys.begin(), hotKey,
                                          [&](const HotKey& other) { return other.shortcut == hotKey->shortcut; });
        if (hotKey->shortcut.keyCode == 0) {
            section.findings.push_back(switchedOff(*hotKey->command));
        } else if (earlier != hotKey) {
            section.findings.push_back(taken(*hotKey, *earlier));
        } else {
            section.findings.push_back(hotKeyFinding(*hotKey, probe, facts.isProgramRunning));
            if ((hotKey->shortcut.modifiers & hotKeyModifiers::command) != 0) {
                withCommand.push_back(hotKey->text);
            }
        }
    }
    if (!withCommand.empty() && probe.isCommandKeyHeld()) {
        section.findings.push_back(commandKeyFinding(withCommand, facts, keyboardLayout));
    }
    return section;
}

} // namespace quorvel
