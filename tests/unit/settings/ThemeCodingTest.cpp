#include "settings/ThemeCoding.h"

#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/MoveResizeTheme.h"
#include "settings/SwitcherTheme.h"
#include "settings/Theme.h"
#include "tests/unit/settings/ThemeFixture.h"

namespace quorvel {
namespace {

template <class Record>
std::string errorOf(std::string_view json)
{
    const auto decoded = decodeThemes<Record>(json);
    return decoded ? "none" : decoded.error();
}

// The only theme of a document.
template <class Record>
Record only(std::string_view json)
{
    const auto decoded = decodeThemes<Record>(json);
    EXPECT_TRUE(decoded) << decoded.error();
    EXPECT_EQ(decoded->size(), 1U);
    return decoded->front();
}

TEST(ThemeCoding, AThemeOfTheOverlayIsReadAsItWasWritten)
{
    const auto theme = only<Theme>(nightTheme);
    EXPECT_EQ(theme.id.text(), "6F9619FF-8B86-D011-B42D-00C04FC964FF");
    EXPECT_EQ(theme.name, "Night");
    EXPECT_EQ(theme.overlayBorderColorHex, "#112233");
    EXPECT_EQ(theme.overlayBackgroundColorHex, "#11223344");
    EXPECT_EQ(theme.overlayBorderWidth, 2.5);
    EXPECT_EQ(theme.overlayBorderRadius, 4.0);
    EXPECT_EQ(theme.textBorderColorHex, "#FFFFFF");
    EXPECT_EQ(theme.textBackgroundColorHex, "#00000080");
    EXPECT_EQ(theme.textBorderWidth, 1.0);
    EXPECT_EQ(theme.textColorHex, "#FF0000");
    EXPECT_EQ(theme.textSize, 30.0);
    EXPECT_EQ(theme.textBorderRadius, 6.0);
    EXPECT_FALSE(theme.isTextBold);
    EXPECT_EQ(theme.labelPositionRaw, "topLeft");
    EXPECT_EQ(theme.notes, std::nullopt);
}

TEST(ThemeCoding, DatesCountSecondsFromTheBeginningOf2001)
{
    constexpr double from1970To2001 = 978307200.0;
    constexpr double newYear2025 = 1735689600.0;
    EXPECT_EQ(only<Theme>(nightTheme).createdAt, Date{newYear2025 - from1970To2001});
}

TEST(ThemeCoding, EncodingADecodedDocumentGivesItBack)
{
    EXPECT_EQ(encodeThemes(*decodeThemes<Theme>(nightTheme)), nightTheme);
    EXPECT_EQ(encodeThemes(*decodeThemes<SwitcherTheme>(duskTheme)), duskTheme);
    EXPECT_EQ(encodeThemes(*decodeThemes<MoveResizeTheme>(calmTheme)), calmTheme);
    EXPECT_EQ(encodeThemes(std::vector<Theme>{}), "[]");
}

TEST(ThemeCoding, NotesAreWrittenOnlyWhenThereAreAny)
{
    auto theme = only<Theme>(nightTheme);
    EXPECT_THAT(*encodeThemes<Theme>({theme}), testing::Not(testing::HasSubstr("notes")));
    theme.notes = "x";
    EXPECT_THAT(*encodeThemes<Theme>({theme}), testing::HasSubstr(R"("updatedAt":757382400,"notes":"x"})"));
}

TEST(ThemeCoding, NotesMayBeAbsentOrNull)
{
    EXPECT_EQ(only<Theme>(edited(nightTheme, "}]", R"(,"notes":null}])")).notes, std::nullopt);
    EXPECT_EQ(only<Theme>(edited(nightTheme, "}]", R"(,"notes":"x"}])")).notes, "x");
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, "}]", R"(,"notes":5}])")), "[0].notes is not a string");
}

TEST(ThemeCoding, UnknownKeysAreIgnored)
{
    EXPECT_EQ(only<Theme>(edited(nightTheme, "}]", R"(,"mood":[1]}])")), only<Theme>(nightTheme));
}

TEST(ThemeCoding, AMissingKeyFailsTheWholeDocument)
{
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, R"(,"updatedAt":757382400)", "")), "[0].updatedAt is missing");
    auto two = edited(nightTheme, "}]", "},");
    two += edited(nightTheme, R"("name":"Night",)", "").substr(1);
    EXPECT_EQ(errorOf<Theme>(two), "[1].name is missing");
}

TEST(ThemeCoding, AValueOfAWrongTypeFailsTheWholeDocument)
{
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, "2.5", R"("2.5")")), "[0].overlayBorderWidth is not a number");
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, "2.5", "true")), "[0].overlayBorderWidth is not a number");
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, "false", "0")), "[0].isTextBold is not a Boolean");
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, R"("Night")", "null")), "[0].name is not a string");
    EXPECT_EQ(errorOf<Theme>(edited(nightTheme, "6F9619FF-", "")), "[0].id is not a UUID");
    EXPECT_EQ(errorOf<Theme>("[5]"), "[0] is not an object");
    EXPECT_EQ(errorOf<Theme>("{}"), "the top level is not an array");
    EXPECT_NE(errorOf<Theme>("["), "none");
    EXPECT_NE(errorOf<Theme>(""), "none");
}

TEST(ThemeCoding, ALowerCaseIdIsWrittenInUpperCase)
{
    const auto document =
        edited(nightTheme, "6F9619FF-8B86-D011-B42D-00C04FC964FF", "6f9619ff-8b86-d011-b42d-00c04fc964ff");
    EXPECT_EQ(encodeThemes(*decodeThemes<Theme>(document)), nightTheme);
}

TEST(ThemeCoding, AnIntegerCountsAsANumber)
{
    EXPECT_EQ(only<Theme>(edited(nightTheme, "2.5", "3")).overlayBorderWidth, 3.0);
}

TEST(ThemeCoding, TheCornerRadiusIsAnInteger)
{
    EXPECT_EQ(only<MoveResizeTheme>(calmTheme).cornerRadius, 10);
    EXPECT_EQ(only<MoveResizeTheme>(edited(calmTheme, ":10", ":10.0")).cornerRadius, 10);
    for (const auto* value : {":10.5", R"(:"10")", ":1e30", ":18446744073709551615", ":true"}) {
        EXPECT_EQ(errorOf<MoveResizeTheme>(edited(calmTheme, ":10", value)), "[0].cornerRadius is not an integer");
    }
}

TEST(ThemeCoding, AThemeOfTheSwitcherHoldsItsDisplayMode)
{
    const auto theme = only<SwitcherTheme>(duskTheme);
    EXPECT_FALSE(theme.showWindowInfo);
    EXPECT_EQ(theme.defaultDisplayModeRaw, "list");
    EXPECT_EQ(errorOf<SwitcherTheme>(nightTheme), "[0].showWindowInfo is missing");
}

TEST(ThemeCoding, ANumberThatIsNotFiniteCannotBeWritten)
{
    auto theme = only<Theme>(nightTheme);
    theme.textSize = std::numeric_limits<double>::infinity();
    const auto encoded = encodeThemes<Theme>({theme});
    ASSERT_FALSE(encoded);
    EXPECT_EQ(encoded.error(), "textSize is not finite: inf");
    theme.textSize = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(encodeThemes<Theme>({theme}));
    EXPECT_FALSE(decodeThemes<Theme>(edited(nightTheme, "2.5", "1e999")));
}

TEST(ThemeCoding, InvalidTextIsWrittenWithReplacementCharacters)
{
    auto theme = only<Theme>(nightTheme);
    theme.name = "N\xFFght";
    EXPECT_EQ(only<Theme>(*encodeThemes<Theme>({theme})).name, "N\xEF\xBF\xBDght");
}

} // namespace
} // namespace quorvel
