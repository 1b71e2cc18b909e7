#pragma once

#include <initializer_list>
#include <ranges>
#include <vector>

#include "base/Keys.h"

namespace quorvel {

// Key codes in ascending order, each once. In one piece of memory: a mode takes every key of the keyboard and gives all
// of them back while a person waits for what the key does.
class KeyCodeSet {
public:
    using value_type = KeyCode;
    using const_iterator = std::vector<KeyCode>::const_iterator;

    KeyCodeSet() = default;
    KeyCodeSet(std::initializer_list<KeyCode> keyCodes) { insert(keyCodes); }

    template <std::input_iterator Iterator>
    KeyCodeSet(Iterator first, Iterator last)
    {
        insert(std::ranges::subrange(first, last));
    }

    void insert(KeyCode keyCode);
    void insert(std::ranges::input_range auto&& keyCodes)
    {
        for (const KeyCode keyCode : keyCodes) {
            insert(keyCode);
        }
    }
    void clear() { sorted.clear(); }

    bool contains(KeyCode keyCode) const;
    bool empty() const { return sorted.empty(); }
    std::size_t size() const { return sorted.size(); }
    const_iterator begin() const { return sorted.begin(); }
    const_iterator end() const { return sorted.end(); }

    bool operator==(const KeyCodeSet&) const = default;

private:
    std::vector<KeyCode> sorted;
};

} // namespace quorvel
