#include "platform/simulated/SimulatedKeyboardLayout.h"

#include <string_view>

#include "platform/simulated/Journal.h"

namespace quorvel {

namespace {

struct KeyRow {
    KeyCode first;
    std::string_view plain;
    std::string_view shifted;
};

// Keys with neighbouring codes.
constexpr KeyRow rows[] = {
    {0, "asdfhgzxcv", "ASDFHGZXCV"},
    {11, "bqweryt123465=97-80]ou[ip\rlj'k;\\,/nm.\t `\x7f", "BQWERYT!@#$^%+(&_*)}OU{IP\rLJ\"K:|<?NM>\t ~\x7f"},
    {53, "\x1b", "\x1b"},
    {65, ".", "."},
    {67, "*", "*"},
    {69, "+", "+"},
    {75, "/", "/"},
    {78, "-", "-"},
    {81, "=01234567", "=01234567"},
    {91, "89", "89"},
};

} // namespace

SimulatedKeyboardLayout::SimulatedKeyboardLayout(Journal& journal) : journal(journal)
{
    for (const auto& row : rows) {
        for (std::size_t index = 0; index < row.plain.size(); ++index) {
            keys.emplace(row.first + static_cast<KeyCode>(index),
                         Key{std::string(1, row.plain[index]), std::string(1, row.shifted[index])});
        }
    }
}

std::string SimulatedKeyboardLayout::characters(KeyCode keyCode)
{
    journal.record("KeyboardLayout.characters({})", keyCode);
    return typed(keyCode, 0);
}

std::string SimulatedKeyboardLayout::typed(KeyCode keyCode, std::uint64_t flags) const
{
    const auto key = keys.find(keyCode);
    if (key == keys.end()) {
        return {};
    }
    return (flags & eventFlags::shift) != 0 ? key->second.shifted : key->second.plain;
}

} // namespace quorvel
