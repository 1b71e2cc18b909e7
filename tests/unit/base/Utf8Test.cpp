#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Utf8, CountsCharactersAsAPersonDoes)
{
    EXPECT_EQ(characterCount(""), 0U);
    EXPECT_EQ(characterCount("Safari"), 6U);
    EXPECT_EQ(characterCount("é"), 1U);
    EXPECT_EQ(characterCount("e\xCC\x81t"), 2U);
    EXPECT_EQ(characterCount("👩‍👩‍👧‍👦!"), 2U);
    EXPECT_EQ(characterCount("\xFF\xFE"), 2U);
}

TEST(Utf8, TheFirstCharacterKeepsItsCombiningMarks)
{
    EXPECT_EQ(firstCharacter("é!"), "é");
    EXPECT_EQ(firstCharacter("e\xCC\x81!"), "e\xCC\x81");
    EXPECT_EQ(firstCharacter(""), "");
}

TEST(Utf8, UpperCasesBeyondAscii)
{
    EXPECT_EQ(upperCased("b"), "B");
    EXPECT_EQ(upperCased("é"), "É");
    EXPECT_EQ(upperCased("ж"), "Ж");
    EXPECT_EQ(upperCased("ß"), "SS");
    EXPECT_EQ(upperCased("?"), "?");
}

TEST(Utf8, NumericCharactersAreDigitsOfAnyScript)
{
    EXPECT_TRUE(isNumericCharacter("3"));
    EXPECT_TRUE(isNumericCharacter("٣"));
    EXPECT_TRUE(isNumericCharacter("½"));
    EXPECT_FALSE(isNumericCharacter("a"));
    EXPECT_FALSE(isNumericCharacter("!"));
    EXPECT_FALSE(isNumericCharacter(""));
}

TEST(Utf8, TrimmingKeepsLettersMarksAndNumbersOfAnyScript)
{
    EXPECT_EQ(trimmedToAlphanumerics(" -a b- "), "a b");
    EXPECT_EQ(trimmedToAlphanumerics("«é½»"), "é½");
    EXPECT_EQ(trimmedToAlphanumerics("#\xCC\x81x"), "\xCC\x81x");
    EXPECT_EQ(trimmedToAlphanumerics("\xFF"
                                     "Ⅳ"
                                     "\xFF"),
              "Ⅳ");
    EXPECT_EQ(trimmedToAlphanumerics("#~ "), "");
    EXPECT_EQ(trimmedToAlphanumerics(""), "");
}

TEST(Utf8, InvalidBytesBecomeReplacementCharacters)
{
    EXPECT_EQ(validUtf8("a\xFF"
                        "b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(validUtf8("né"), "né");
}

TEST(Utf8, WhiteSpaceIsTrimmedFromTheEndsOnly)
{
    EXPECT_EQ(trimmedOfWhiteSpace(" 5 "), "5");
    EXPECT_EQ(trimmedOfWhiteSpace("\t a b\u00A0\u2003\n"), "a b");
    EXPECT_EQ(trimmedOfWhiteSpace(" - "), "-");
    EXPECT_EQ(trimmedOfWhiteSpace("  "), "");
    EXPECT_EQ(trimmedOfWhiteSpace(""), "");
}

} // namespace
} // namespace quorvel
