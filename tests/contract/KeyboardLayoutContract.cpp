#include <set>
#include <string_view>

#include "contract/ContractTest.h"
#include "platform/KeyboardLayout.h"

namespace quorvel::contract {
namespace {

class KeyboardLayoutContract : public ContractTest {
protected:
    KeyboardLayout& layout = port(&ContractPorts::keyboardLayout);
};

TEST_F(KeyboardLayoutContract, AKeyTypesItsCharacterWithoutModifiers)
{
    EXPECT_EQ(layout.characters(0), "a");
    EXPECT_EQ(layout.characters(46), "m");
    EXPECT_EQ(layout.characters(18), "1");
    EXPECT_EQ(layout.characters(41), ";");
    EXPECT_EQ(layout.characters(50), "`");
}

TEST_F(KeyboardLayoutContract, HeldModifiersDoNotMatter)
{
    desktop->holdKey(11, eventFlags::shift);
    desktop->settle();

    EXPECT_EQ(layout.characters(0), "a");
}

TEST_F(KeyboardLayoutContract, AKeyThatTypesNothingHasNoCharacters)
{
    EXPECT_EQ(layout.characters(keyCodes::leftArrow), "");
    EXPECT_EQ(layout.characters(keyCodes::upArrow), "");
}

TEST_F(KeyboardLayoutContract, AKeyThatDoesNotExistHasNoCharacters)
{
    EXPECT_EQ(layout.characters(200), "");
    EXPECT_EQ(layout.characters(70000), "");
    EXPECT_EQ(layout.characters(-1), "");
}

TEST_F(KeyboardLayoutContract, EveryModifierHasANameOfItsOwn)
{
    const auto names = layout.modifierNames();
    const std::set<std::string_view> different{names.command, names.shift, names.option, names.control};

    EXPECT_EQ(different.size(), 4U);
    EXPECT_FALSE(different.contains(""));
}

} // namespace
} // namespace quorvel::contract
