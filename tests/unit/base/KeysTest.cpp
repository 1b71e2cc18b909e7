#include "base/Keys.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Keys, EachModifierHasItsHotKeyBit)
{
    EXPECT_EQ(hotKeyModifiersOf(0x100000), 256U);
    EXPECT_EQ(hotKeyModifiersOf(0x20000), 512U);
    EXPECT_EQ(hotKeyModifiersOf(0x80000), 2048U);
    EXPECT_EQ(hotKeyModifiersOf(0x40000), 4096U);
}

TEST(Keys, ModifiersCombineAndOtherFlagsAreIgnored)
{
    EXPECT_EQ(hotKeyModifiersOf(0x1E0000), 256U + 512U + 2048U + 4096U);
    EXPECT_EQ(hotKeyModifiersOf(eventFlags::capsLock | 0xA00000U | 0x102U), 0U);
}

} // namespace
} // namespace quorvel
