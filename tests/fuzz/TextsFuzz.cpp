// Texts of other programs and of settings: titles, what keys type, names of keyboards, shortcuts.

#include <cstring>
#include <string>

#include "base/FocusSwitcherDisplayMode.h"
#include "base/KeyboardLayoutProfile.h"
#include "base/LabelPosition.h"
#include "base/LogText.h"
#include "base/Utf8.h"
#include "base/Uuid.h"
#include "platform/PropertyValue.h"
#include "preferences/ShortcutText.h"
#include "settings/PropertyConversions.h"
#include "system/CapturedKey.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

namespace {

void checkCharacters(const std::string& text)
{
    const auto first = firstCharacter(text);
    require(text.starts_with(first), "the first character stands at the beginning");
    require(first.empty() == text.empty(), "every text but the empty one has a first character");
    require(characterCount(first) == (text.empty() ? 0 : 1), "the first character is one");
    require(characterCount(text) <= text.size(), "no character is without bytes");

    const auto valid = validUtf8(text);
    require(validUtf8(valid) == valid, "valid text stays as it is");
    require(text.find(trimmedToAlphanumerics(text)) != std::string::npos, "trimming takes away only");
    require(text.find(trimmedOfWhiteSpace(text)) != std::string::npos, "trimming takes away only");
    require(trimmedOfWhiteSpace(trimmedOfWhiteSpace(text)) == trimmedOfWhiteSpace(text), "trimming once is enough");
    const auto line = plainLine(text);
    require(plainLine(line) == line && line.find('\n') == std::string::npos, "a line of the log is one");
    const auto upper = upperCased(valid);
    require(validUtf8(upper) == upper, "upper case is valid text");
    static_cast<void>(isNumericCharacter(first));
    require(capturedKeyFrom({0, text, 0}).character == (text.empty() ? "?" : first), "a key types one character");
}

void checkNames(const std::string& text)
{
    if (const auto profile = keyboardLayoutProfileFromRawValue(text)) {
        require(rawValue(*profile) == text, "a profile has the name it was found by");
    }
    if (const auto position = labelPositionFromRawValue(text)) {
        require(rawValue(*position) == text, "a position has the name it was found by");
    }
    if (const auto mode = focusSwitcherDisplayModeFromRawValue(text)) {
        require(rawValue(*mode) == text, "a mode has the name it was found by");
    }
    if (const auto id = Uuid::fromText(text)) {
        require(Uuid::fromText(id->text()) == id, "an id survives a round trip");
    }
}

void checkShortcut(std::span<const std::uint8_t> input)
{
    Shortcut shortcut;
    if (input.size() < sizeof shortcut.keyCode + sizeof shortcut.modifiers) {
        return;
    }
    std::memcpy(&shortcut.keyCode, input.data(), sizeof shortcut.keyCode);
    std::memcpy(&shortcut.modifiers, input.data() + sizeof shortcut.keyCode, sizeof shortcut.modifiers);
    for (const auto profile : allKeyboardLayoutProfiles) {
        const auto text = shortcutText(shortcut, profile);
        require(!text.empty(), "every shortcut reads as something");
        static_cast<void>(spelledOutShortcut(shortcut, profile, {"Super", "Shift", "Alt", "Control"}));
    }
}

} // namespace

void fuzz(std::span<const std::uint8_t> input)
{
    const std::string text(textOf(input));
    checkCharacters(text);
    checkNames(text);
    checkShortcut(input);
    const PropertyValue value{text};
    static_cast<void>(integerFrom(value));
    static_cast<void>(realFrom(value));
    static_cast<void>(booleanFrom(value));
    require(stringFrom(value) == text, "a text is a text");
}

} // namespace quorvel
