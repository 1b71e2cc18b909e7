#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/KeyboardLayout.h"

namespace quorvel {

class Journal;

// A US keyboard, whose keys can be given other characters.
class SimulatedKeyboardLayout final : public KeyboardLayout {
public:
    struct Key {
        std::string plain;
        std::string shifted;
    };

    explicit SimulatedKeyboardLayout(Journal& journal);

    std::string characters(KeyCode keyCode) override;
    ModifierNames modifierNames() const override { return {"Command", "Shift", "Option", "Control"}; }

    // What the key types with the modifiers of a key event.
    std::string typed(KeyCode keyCode, std::uint64_t flags) const;

    void setKey(KeyCode keyCode, Key key) { keys.insert_or_assign(keyCode, std::move(key)); }
    // A key that types nothing by itself, such as an accent.
    void makeDead(KeyCode keyCode) { keys.erase(keyCode); }

private:
    Journal& journal;
    std::map<KeyCode, Key> keys;
};

} // namespace quorvel
