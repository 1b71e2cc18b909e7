#include "doctor/KeyboardFindings.h"

#include "base/KeyboardLayoutProfile.h"
#include "settings/SettingsKeys.h"
#include "tests/unit/doctor/DoctorFixture.h"

namespace quorvel {
namespace {

using testing::HasSubstr;

class KeyboardFindings : public DoctorFixture {
protected:
    void type(KeyCode keyCode, const std::string& character)
    {
        desktop.keyboardLayout.setKey(keyCode, {character, character});
    }

    void typeAsOn(KeyboardLayoutProfile profile)
    {
        for (const auto& [character, keyCode] : characterTableFor(profile)) {
            type(keyCode, character);
        }
    }
};

TEST_F(KeyboardFindings, AUsKeyboardHasEveryLetterAndItsName)
{
    EXPECT_THAT(finding("keyboard.layout"), says(Verdict::good, "The keyboard layout is \"us\"."));
    EXPECT_THAT(finding("keyboard.letters"), says(Verdict::good, "Every letter of a label has its key."));
    EXPECT_THAT(finding("keyboard.profile"), says(Verdict::good, HasSubstr("QWERTY")));
}

TEST_F(KeyboardFindings, OfSeveralLayoutsThatOfTheMomentIsNamed)
{
    desktop.desktopProbe.desktop.keyboard = {{"us", "de (nodeadkeys)"}, 1};
    EXPECT_THAT(finding("keyboard.layout"),
                says(Verdict::good, "The keyboard layout is \"de (nodeadkeys)\" of: us, de (nodeadkeys)."));
}

TEST_F(KeyboardFindings, ALayoutWithoutANameIsNoProblem)
{
    desktop.desktopProbe.desktop.keyboard = {};
    EXPECT_THAT(finding("keyboard.layout"), says(Verdict::good, "The keyboard layout has no name."));
}

TEST_F(KeyboardFindings, WithoutLatinLettersNoLabelCanBeChosen)
{
    for (const auto& [character, keyCode] : characterTableFor(KeyboardLayoutProfile::qwerty)) {
        type(keyCode, "ы");
    }
    EXPECT_THAT(finding("keyboard.letters"), says(Verdict::problem, HasSubstr("No key types a letter from A to Z")));
    EXPECT_FALSE(isFit());
}

TEST_F(KeyboardFindings, LettersThatNoKeyTypesAreNamed)
{
    type(12, "1"); // where Q is
    desktop.keyboardLayout.makeDead(13);
    EXPECT_THAT(finding("keyboard.letters"), says(Verdict::problem, HasSubstr("No key types Q, W,")));
}

TEST_F(KeyboardFindings, AKeyboardOfAnotherKindIsToldWithTheProfileThatFits)
{
    typeAsOn(KeyboardLayoutProfile::colemak);
    const auto found = finding("keyboard.profile");
    EXPECT_THAT(found, says(Verdict::notice, HasSubstr("other keys type D, E, F")));
    EXPECT_EQ(found.advice, "Choose Colemak in the preferences.");
    store(std::string(settingsKeys::keyboardLayoutProfile), {std::string("Colemak")});
    EXPECT_THAT(finding("keyboard.profile"), says(Verdict::good, HasSubstr("Colemak")));
}

TEST_F(KeyboardFindings, WhereNoProfileFitsBetterNoneIsAdvised)
{
    type(6, "y"); // Y and Z in each other's places
    type(16, "z");
    const auto found = finding("keyboard.profile");
    EXPECT_THAT(found, says(Verdict::notice, HasSubstr("other keys type Y, Z")));
    EXPECT_THAT(found.advice, testing::Not(HasSubstr("Choose")));
}

} // namespace
} // namespace quorvel
